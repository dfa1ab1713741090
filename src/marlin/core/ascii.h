// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

/// Case of the ASCII letters alone, in every locale.
namespace PLATFORM {

[[nodiscard]] constexpr char ToUpper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

[[nodiscard]] constexpr char ToLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Equal lengths, and equal bytes once letters are folded.
[[nodiscard]] constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) noexcept {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return x == y || ToLower(x) == ToLower(y);
           });
}

/// Below, at or above 0: letters folded to lower case, then unsigned bytes compared; a text
/// stands before the longer ones that it begins.
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

}  // namespace PLATFORM
