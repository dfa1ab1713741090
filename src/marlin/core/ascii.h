// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Characters of ASCII, alike in every locale; bytes above 127 are neither letters nor blanks.
namespace MARLINSUITE {

[[nodiscard]] constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

/// Spaces, tabs and line ends, the vertical tab and the form feed among them.
[[nodiscard]] constexpr bool IsBlank(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

[[nodiscard]] constexpr char ToUpper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

[[nodiscard]] constexpr char ToLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

[[nodiscard]] inline std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), ToLower);
    return lower;
}

/// True when the texts have one length and, letters folded, the same bytes.
[[nodiscard]] constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) noexcept {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return x == y || ToLower(x) == ToLower(y);
           });
}

/// Below, at or above 0: letters are folded to lower case, then unsigned bytes compared. A text
/// comes before the longer ones that begin with it.
[[nodiscard]] constexpr int CompareIgnoringCase(std::string_view a, std::string_view b) noexcept {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference =
            static_cast<unsigned char>(ToLower(a[i])) - static_cast<unsigned char>(ToLower(b[i]));
        if (difference != 0) {
            return difference;
        }
    }
    return static_cast<int>(a.size() > b.size()) - static_cast<int>(a.size() < b.size());
}

}  // namespace MARLINSUITE
