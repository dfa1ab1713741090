// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/color_name_table.h>
#include <marlin/base/colors/detail/color_names.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace MARLINSUITE::detail {

namespace {

// Level 0.0 to 1.0 in hundredths; 2.55 in binary lies just below it, which is how 50 and 90
// come to be 127 and 229 in the published list.
std::optional<unsigned int> NumberedGray(std::string_view name) {
    int percent = -1;
    const bool isGray = name.starts_with("gray") || name.starts_with("grey");
    const bool isDigits = name.find_first_not_of("0123456789", 4) == std::string_view::npos;
    if (!isGray || !isDigits || !ParseWhole(name.substr(4), percent) || percent > 100) {
        return std::nullopt;
    }
    const auto level = static_cast<unsigned int>(percent * 2.55 + 0.5);
    return level << 16 | level << 8 | level;
}

}  // namespace

std::optional<unsigned int> NamedColorOf(std::string_view name) {
    const std::string lower = LowerCase(name);
    const bool isShade = !lower.empty() && lower.back() >= '1' && lower.back() <= '4';
    const std::string_view plain =
        std::string_view(lower).substr(0, lower.size() - (isShade ? 1 : 0));
    const auto found = std::ranges::lower_bound(namedColors, plain, {}, &NamedColor::Name);
    const bool isNamed = found != std::end(namedColors) && found->Name == plain;
    if (isNamed && !isShade) {
        return found->Color;
    }
    if (isNamed && found->Shades[3] != 0) {
        return found->Shades[lower.back() - '1'];
    }
    return NumberedGray(lower);
}

}  // namespace MARLINSUITE::detail
