// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace MARLINSUITE::detail {

/// The color 0xRRGGBB of an X11 color name without blanks ("steelblue3"), "gray0" (black) to
/// "gray100" (white) and the spelling "grey" included; letters may have either case.
[[nodiscard]] std::optional<unsigned int> NamedColorOf(std::string_view name);

}  // namespace MARLINSUITE::detail
