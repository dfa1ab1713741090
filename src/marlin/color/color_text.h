// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/core/export.h>

#include <optional>
#include <string>
#include <string_view>

// Colors as people write them.

namespace MARLINSUITE {

/// "#rrggbb", "r,g,b" or "r/g/b" with numbers of 0 to 255, "dxf:N" for an entry of the DXF
/// palette, or the name of a basic color, in any case. Nothing for another text.
/// @code
/// assert(MARLINSUITE::ParseColor("0,64,128") == MARLINSUITE::ParseColor("#004080"));
/// @endcode
[[nodiscard]] MARLIN_API std::optional<RGBColor> ParseColor(std::string_view text);

/// "#rrggbb".
[[nodiscard]] MARLIN_API std::string ColorText(const RGBColor& color);

/// The texts that `ParseColor` takes, for messages.
inline constexpr std::string_view ColorForms =
    "#rrggbb, r,g,b, r/g/b, dxf:N, black, red, yellow, green, cyan, blue, magenta or white";

}  // namespace MARLINSUITE
