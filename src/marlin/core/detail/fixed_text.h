// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>

namespace MARLINSUITE {

/// Fixed-point notation by exact integer arithmetic, for the values and decimals that settings
/// files hold. A double is m * 2^e; m * 10^decimals fits 128 bits, and shifting it by e, halves
/// to even, is the correct rounding.
class FixedText {
public:
    /// False, and nothing appended, when value or decimals are outside its range: up to 9
    /// decimals, and |value| * 10^decimals below 2^62.
    static bool Append(std::string& text, double value, int decimals);

private:
    static constexpr int mostDecimals = 9;
    static constexpr std::array<std::uint64_t, mostDecimals + 1> powers = {
        1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

    // |value| * 10^decimals, rounded; the value must be in range.
    static std::uint64_t Scaled(std::uint64_t bits, int decimals) noexcept;
    static void AppendScaled(std::string& text, bool negative, std::uint64_t scaled, int decimals);
};

inline std::uint64_t FixedText::Scaled(std::uint64_t bits, int decimals) noexcept {
    const int biased = static_cast<int>((bits >> 52) & 0x7FFU);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << 52) - 1);
    const std::uint64_t mantissa = biased == 0 ? fraction : fraction | std::uint64_t{1} << 52;
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide{mantissa} * powers[static_cast<std::size_t>(decimals)];
    const int shift = 1075 - (biased == 0 ? 1 : biased);
    if (shift <= 0) {
        return static_cast<std::uint64_t>(product << -shift);
    }
    if (shift > 126) {
        return 0;  // below a quarter, since the product has at most 83 bits
    }
    const auto whole = static_cast<std::uint64_t>(product >> shift);
    const Wide rest = product & ((Wide{1} << shift) - 1);
    const Wide half = Wide{1} << (shift - 1);
    return whole + static_cast<std::uint64_t>(rest > half || (rest == half && (whole & 1U) != 0));
}

inline void FixedText::AppendScaled(std::string& text, bool negative, std::uint64_t scaled,
                                    int decimals) {
    std::array<char, 32> buffer{};
    char* const end = buffer.data() + buffer.size();
    char* at = end;
    std::uint64_t whole = scaled;
    if (decimals > 0) {
        const std::uint64_t power = powers[static_cast<std::size_t>(decimals)];
        whole = scaled / power;
        auto fraction = static_cast<std::uint32_t>(scaled % power);
        for (int i = 0; i < decimals; ++i, fraction /= 10) {
            *--at = static_cast<char>('0' + fraction % 10);
        }
        *--at = '.';
    }
    do {
        *--at = static_cast<char>('0' + whole % 10);
        whole /= 10;
    } while (whole != 0);
    if (negative) {
        *--at = '-';
    }
    text.append(at, end);
}

inline bool FixedText::Append(std::string& text, double value, int decimals) {
    constexpr double limit = 4611686018427387904.0;  // 2^62
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto magnitude = std::bit_cast<double>(bits & ~(std::uint64_t{1} << 63));
    if (decimals > mostDecimals ||
        !(magnitude * static_cast<double>(powers[static_cast<std::size_t>(decimals)]) < limit)) {
        return false;
    }
    AppendScaled(text, (bits >> 63) != 0, Scaled(bits, decimals), decimals);
    return true;
}

}  // namespace MARLINSUITE
