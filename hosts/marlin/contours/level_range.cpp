// SPDX-License-Identifier: MIT
#include "level_range.h"

#include "output/failure.h"
#include "output/printable.h"
#include <marlin/contours/contour_definition_list.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace HOST {

namespace {

// `Digits` times a power of ten. Digits stay below the limit, so that differences fit as well.
struct Decimal {
    static constexpr std::int64_t Limit = 1'000'000'000'000'000'000;

    std::int64_t Digits = 0;
    int Exponent = 0;
};

[[noreturn]] void FailDigits() {
    Fail("--range: the numbers have too many digits");
}

double ParseNumber(const std::string& text) {
    double number = 0.0;
    if (!MARLINSUITE::ParseWhole(text, number) || !std::isfinite(number)) {
        Fail("--range: \"" + text + "\" is no number");
    }
    return number;
}

// Takes the text of a number apart; zeros at the end of its digits count in the exponent.
Decimal ParseDecimal(const std::string& text) {
    const auto mark = std::min(text.find_first_of("eE"), text.size());
    std::string digits = text.substr(0, mark);
    Decimal decimal;
    if (mark < text.size()) {
        MARLINSUITE::ParseNumber(std::string_view(text).substr(mark + 1), decimal.Exponent);
    }
    if (const auto point = digits.find('.'); point != std::string::npos) {
        digits.erase(point, 1);
        digits.erase(digits.find_last_not_of(" \t\r\n") + 1);
        decimal.Exponent -= static_cast<int>(digits.size() - point);
    }
    const auto first = std::min(digits.find_first_of("123456789"), digits.size());
    const auto last = digits.find_last_of("123456789");
    const auto end = last == std::string::npos ? first : last + 1;
    const auto zeros = static_cast<int>(digits.find_last_of("0123456789") + 1 - end);
    if (end - first > 18) {
        FailDigits();
    }
    std::from_chars(digits.data() + first, digits.data() + end, decimal.Digits);
    decimal.Digits *= digits.find('-') == std::string::npos ? 1 : -1;
    decimal.Exponent = decimal.Digits == 0 ? 0 : decimal.Exponent + zeros;
    return decimal;
}

// The same number with a smaller exponent.
Decimal WithExponent(Decimal decimal, int exponent) {
    for (; decimal.Digits != 0 && decimal.Exponent > exponent; --decimal.Exponent) {
        if (std::abs(decimal.Digits) >= Decimal::Limit / 10) {
            FailDigits();
        }
        decimal.Digits *= 10;
    }
    return {decimal.Digits, exponent};
}

// The rounded quotients towards plus and minus infinity; the divisor is positive.
std::int64_t CeilingOf(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor + (dividend % divisor > 0 ? 1 : 0);
}
std::int64_t FloorOf(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

void RequireFewLevels(double count) {
    if (count > ContourDefinitionList::MaxGeneratedLevels) {
        Fail("--range: more than " + NumberText(ContourDefinitionList::MaxGeneratedLevels) +
             " levels");
    }
}

void CheckRange(const std::vector<std::string>& texts) {
    const double low = ParseNumber(texts[0]);
    const double high = ParseNumber(texts[1]);
    const double interval = ParseNumber(texts[2]);
    if (!(interval > 0.0)) {
        Fail("--range: INTERVAL " + texts[2] + " is not above 0");
    }
    if (!(low < high)) {
        Fail("--range: LOW " + texts[0] + " is not below HIGH " + texts[1]);
    }
    RequireFewLevels((high - low) / interval);
}

}  // namespace

std::vector<double> LevelsInRange(const std::vector<std::string>& range) {
    CheckRange(range);
    std::array<Decimal, 3> numbers{};
    std::ranges::transform(range, numbers.begin(), ParseDecimal);
    const int exponent = std::ranges::min(numbers, {}, &Decimal::Exponent).Exponent;
    std::ranges::transform(numbers, numbers.begin(), [exponent](const Decimal& number) {
        return WithExponent(number, exponent);
    });
    const auto& [low, high, interval] = numbers;
    const std::int64_t first = CeilingOf(low.Digits, interval.Digits);
    const std::int64_t last = FloorOf(high.Digits, interval.Digits);
    RequireFewLevels(static_cast<double>(last - first + 1));
    std::vector<double> levels;
    for (std::int64_t i = first; i <= last; ++i) {
        const std::string text =
            std::to_string(i * interval.Digits) + "e" + std::to_string(exponent);
        static_cast<void>(MARLINSUITE::ParseNumber(text, levels.emplace_back()));
    }
    return levels;
}

}  // namespace HOST
