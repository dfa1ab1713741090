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
    const std::string lower = PLATFORM::LowerCase(name);
    const auto found =
        std::ranges::lower_bound(namedColors, std::string_view(lower), {}, &NamedColor::Name);
    if (found != std::end(namedColors) && found->Name == lower) {
        return found->RedGreenBlue;
    }
    return NumberedGray(lower);
}

}  // namespace MARLINSUITE::detail
