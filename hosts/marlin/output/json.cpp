// SPDX-License-Identifier: MIT
#include "json.h"

#include <marlin/core/number_text.h>

#include <cmath>
#include <cstdint>

namespace HOST {

Json JsonNumber(double value) {
    // Above it doubles skip whole numbers, and digits would be made up.
    constexpr double largestExact = 9007199254740992.0;
    if (std::trunc(value) == value && std::abs(value) <= largestExact) {
        return static_cast<std::int64_t>(value);
    }
    return value;
}

Json JsonNumber(float value) {
    double wide = static_cast<double>(value);
    MARLINSUITE::ParseNumber(NumberText(value), wide);
    return JsonNumber(wide);
}

void AppendJson(const Json& json, Output& output) {
    // A text that is not UTF-8 would be a fault of this program, and no reason to print nothing.
    output.Text += json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace HOST
