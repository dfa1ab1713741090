// SPDX-License-Identifier: MIT
#include <marlin/core/detail/decimal_scan.h>
#include <marlin/core/detail/fixed_text.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <type_traits>

namespace MARLINSUITE {

namespace {

constexpr bool IsBlank(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

const char* SkipBlanks(const char* at, const char* end) noexcept {
    while (at != end && IsBlank(*at)) {
        ++at;
    }
    return at;
}

// The scanners yield the end of the value that a text begins with, or null without one.

template <class T>
const char* ScanInteger(std::string_view text, T& value) noexcept {
    const char* const end = text.data() + text.size();
    const char* at = SkipBlanks(text.data(), end);
    if (at != end && *at == '+') {
        ++at;
        if (at != end && *at == '-') {
            return nullptr;
        }
    }
    const auto [stop, error] = std::from_chars(at, end, value);
    return error == std::errc() ? stop : nullptr;
}

const char* Scan(std::string_view text, int& value) noexcept {
    return ScanInteger(text, value);
}

const char* Scan(std::string_view text, unsigned int& value) noexcept {
    return ScanInteger(text, value);
}

const char* Scan(std::string_view text, unsigned long& value) noexcept {
    std::uint32_t word = 0;
    const char* const stop = ScanInteger(text, word);
    if (stop) {
        value = word;
    }
    return stop;
}

const char* Scan(std::string_view text, bool& value) noexcept {
    int number = 0;
    const char* const stop = ScanInteger(text, number);
    if (!stop || number < 0 || number > 1) {
        return nullptr;
    }
    value = number == 1;
    return stop;
}

template <class T>
const char* ScanDecimal(std::string_view text, T& value) noexcept {
    const char* const end = text.data() + text.size();
    const DecimalScan scan = DecimalScan::Of(SkipBlanks(text.data(), end), end);
    return scan.Convert(value) ? scan.End : nullptr;
}

const char* Scan(std::string_view text, float& value) noexcept {
    return ScanDecimal(text, value);
}

const char* Scan(std::string_view text, double& value) noexcept {
    return ScanDecimal(text, value);
}

template <class T>
bool ScanWhole(std::string_view text, T& value) noexcept {
    T scanned{};
    const char* const stop = Scan(text, scanned);
    const char* const end = text.data() + text.size();
    if (!stop || SkipBlanks(stop, end) != end) {
        return false;
    }
    value = scanned;
    return true;
}

template <class... Options>
void AppendChars(std::string& text, Options... options) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), options...);
    text.append(digits.data(), result.ptr);
}

}  // namespace

bool ParseNumber(std::string_view text, int& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseNumber(std::string_view text, unsigned int& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseNumber(std::string_view text, unsigned long& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseNumber(std::string_view text, bool& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseNumber(std::string_view text, float& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseNumber(std::string_view text, double& value) noexcept {
    return Scan(text, value) != nullptr;
}

bool ParseWhole(std::string_view text, int& value) noexcept {
    return ScanWhole(text, value);
}

bool ParseWhole(std::string_view text, unsigned long& value) noexcept {
    return ScanWhole(text, value);
}

bool ParseWhole(std::string_view text, bool& value) noexcept {
    return ScanWhole(text, value);
}

bool ParseWhole(std::string_view text, float& value) noexcept {
    return ScanWhole(text, value);
}

bool ParseWhole(std::string_view text, double& value) noexcept {
    return ScanWhole(text, value);
}

void AppendNumber(std::string& text, int value) {
    AppendChars(text, value);
}

void AppendNumber(std::string& text, unsigned int value) {
    AppendChars(text, value);
}

void AppendNumber(std::string& text, unsigned long value) {
    AppendChars(text, static_cast<std::uint32_t>(value));
}

void AppendNumber(std::string& text, bool value) {
    text += value ? '1' : '0';
}

void AppendFixed(std::string& text, double value, int decimals) {
    const int places = std::max(decimals, 0);
    if (FixedText::Append(text, value, places)) {
        return;
    }
    if (!std::isfinite(value)) {
        text += std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
        return;
    }
    // Sign, up to 309 digits, point and decimals.
    const std::size_t start = text.size();
    text.resize(start + 311 + static_cast<std::size_t>(places));
    const auto result = std::to_chars(text.data() + start, text.data() + text.size(), value,
                                      std::chars_format::fixed, places);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
}

void AppendShortest(std::string& text, float value) {
    AppendChars(text, value);
}

void AppendShortest(std::string& text, double value) {
    AppendChars(text, value);
}

void AppendGeneral(std::string& text, double value, int digits) {
    AppendChars(text, value, std::chars_format::general, digits);
}

}  // namespace MARLINSUITE
