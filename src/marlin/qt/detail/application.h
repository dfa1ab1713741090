// SPDX-License-Identifier: MIT
#pragma once

namespace PLATFORM::detail {

/// Sees to it that the process has a `QApplication`: the host's, or else one made here, which
/// lives until the process ends. False when there is none, and no display to make one on, or when
/// the host's application is one without windows.
[[nodiscard]] bool HaveApplication();

}  // namespace PLATFORM::detail
