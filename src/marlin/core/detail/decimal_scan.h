// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace MARLINSUITE {

/// The decimal number that a text begins with, taken apart: (-1)^Negative * Digits *
/// 10^Exponent. Digits beyond the 19th are not held; `Whole` says whether there were none.
struct DecimalScan {
    const char* Begin = nullptr;  ///< Of the digits, behind the sign.
    const char* End = nullptr;    ///< Null when there is no number.
    std::uint64_t Digits = 0;
    int Exponent = 0;
    bool Negative = false;
    bool Whole = true;

    [[nodiscard]] static DecimalScan Of(const char* at, const char* end) noexcept;

    /// The value nearest to the number. False, and the target unchanged, when there is no
    /// number or it is too large for the type.
    template <class T>
    [[nodiscard]] bool Convert(T& value) const noexcept;

private:
    const char* TakeDigits(const char* at, const char* end, int step) noexcept;
    const char* TakeExponent(const char* at, const char* end) noexcept;
    template <class T>
    [[nodiscard]] bool ConvertSlowly(T& value) const noexcept;
};

/// Powers of ten that a type holds exactly.
template <class T>
inline constexpr auto ExactPowersOfTen = [] {
    std::array<T, std::numeric_limits<T>::digits == 53 ? 23 : 11> powers{};
    T power = 1;
    for (T& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

// `step` is 1 for each digit that lies behind the point.
inline const char* DecimalScan::TakeDigits(const char* at, const char* end, int step) noexcept {
    constexpr std::uint64_t full = 1'000'000'000'000'000'000U;  // an 19th digit still fits
    for (; at != end && *at >= '0' && *at <= '9'; ++at) {
        if (Digits < full) {
            Digits = Digits * 10 + static_cast<std::uint64_t>(*at - '0');
            Exponent -= step;
        } else {
            Whole = false;
            Exponent += 1 - step;
        }
    }
    return at;
}

inline const char* DecimalScan::TakeExponent(const char* at, const char* end) noexcept {
    const char* digit = at + 1;
    const bool negative = digit != end && *digit == '-';
    if (digit != end && (*digit == '-' || *digit == '+')) {
        ++digit;
    }
    if (digit == end || *digit < '0' || *digit > '9') {
        return at;  // an "e" of what follows the number
    }
    int exponent = 0;
    for (; digit != end && *digit >= '0' && *digit <= '9'; ++digit) {
        exponent = std::min(exponent * 10 + (*digit - '0'), 100'000'000);
    }
    Exponent += negative ? -exponent : exponent;
    return digit;
}

inline DecimalScan DecimalScan::Of(const char* at, const char* end) noexcept {
    DecimalScan scan;
    if (at != end && (*at == '-' || *at == '+')) {
        scan.Negative = *at == '-';
        ++at;
    }
    scan.Begin = at;
    const char* stop = scan.TakeDigits(at, end, 0);
    auto digits = stop - at;
    if (stop != end && *stop == '.') {
        const char* const fraction = stop + 1;
        stop = scan.TakeDigits(fraction, end, 1);
        digits += stop - fraction;
    }
    if (digits == 0) {
        return scan;
    }
    if (stop != end && (*stop == 'e' || *stop == 'E')) {
        stop = scan.TakeExponent(stop, end);
    }
    scan.End = stop;
    return scan;
}

// Where digits and power of ten are both exact in T, one multiplication or division rounds
// once and gives the nearest value.
template <class T>
bool DecimalScan::Convert(T& value) const noexcept {
    constexpr auto& powers = ExactPowersOfTen<T>;
    constexpr int most = static_cast<int>(powers.size()) - 1;
    constexpr std::uint64_t exact = std::uint64_t{1} << std::numeric_limits<T>::digits;
    if (!End) {
        return false;
    }
    if (!Whole || Digits > exact || Exponent < -most || Exponent > most) {
        return ConvertSlowly(value);
    }
    const T digits = static_cast<T>(Digits);
    const T magnitude = Exponent < 0 ? digits / powers[static_cast<std::size_t>(-Exponent)]
                                     : digits * powers[static_cast<std::size_t>(Exponent)];
    value = Negative ? -magnitude : magnitude;
    return true;
}

template <class T>
bool DecimalScan::ConvertSlowly(T& value) const noexcept {
    T magnitude = 0;
    if (std::from_chars(Begin, End, magnitude).ec != std::errc()) {
        // Out of range either way; the digits, at most 10^19, tell which.
        if (Digits != 0 && Exponent > -20) {
            return false;
        }
        magnitude = 0;
    }
    value = Negative ? -magnitude : magnitude;
    return true;
}

}  // namespace MARLINSUITE
