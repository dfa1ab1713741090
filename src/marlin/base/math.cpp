// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/core/number_text.h>

#include <string>

int GetDoublePrecision(double value) {
    if (!std::isfinite(value)) {
        return 0;
    }
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    const std::size_t mark = std::min(text.find('e'), text.size());
    const std::size_t point = std::min(text.find('.'), mark);
    int decimals = point < mark ? static_cast<int>(mark - point) - 1 : 0;
    if (mark < text.size()) {
        int exponent = 0;
        static_cast<void>(MARLINSUITE::ParseNumber(text.substr(mark + 1), exponent));
        decimals -= exponent;
    }
    return std::max(decimals, 0);
}
