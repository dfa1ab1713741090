// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

namespace PLATFORM {

/// The whole numbers that the arrows of a spin set, both ends included.
struct MARLIN_API SpinRange {
    int Lower = 0;
    int Upper = 100;

    /// The text of an edit after so many steps up: the whole part of its number, moved, and kept
    /// in the range. A text that is not a number counts as the lowest.
    [[nodiscard]] CString Step(const CString& text, int steps) const;
};

}  // namespace PLATFORM
