// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>

#include <optional>
#include <string_view>

namespace HOST {

/// "#rrggbb", "r,g,b" or "r/g/b" with numbers of 0 to 255, "dxf:N" for an entry of the DXF
/// palette, or the name of a basic color, in any case.
[[nodiscard]] std::optional<RGBColor> ParseColor(std::string_view text);

/// The texts that `ParseColor` takes, for messages.
inline constexpr std::string_view ColorForms =
    "#rrggbb, r,g,b, r/g/b, dxf:N, black, red, yellow, green, cyan, blue, magenta or white";

}  // namespace HOST
