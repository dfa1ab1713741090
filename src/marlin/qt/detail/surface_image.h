// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <functional>

class CDC;

namespace PLATFORM::detail {

/// A picture that a window class draws on a context of that size; a null one when there is none.
[[nodiscard]] QImage DrawnImage(QSize pixels, const std::function<void(CDC&)>& draw);

}  // namespace PLATFORM::detail
