// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>

#include <string>

namespace HOST {

/// Two cells of the color and a blank, for a terminal that knows 24-bit colors.
[[nodiscard]] std::string Swatch(const RGBColor& color);

}  // namespace HOST
