// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace PLATFORM {

namespace {

// Bytes 0x80 to 0x9F; all others are the code points of their numbers.
constexpr std::array<char16_t, 32> C1{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsContinuation(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Takes one character of at most three bytes off the front; all of the code page are such.
std::optional<char32_t> TakeCharacter(std::string_view& text) noexcept {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = first < 0x80U ? 1 : first < 0xE0U ? 2 : 3;
    if ((first >= 0x80U && first < 0xC2U) || first >= 0xF0U || text.size() < length) {
        return std::nullopt;
    }
    char32_t character = length == 1 ? first : first & (length == 2 ? 0x1FU : 0x0FU);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return std::nullopt;
        }
        character = character << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    text.remove_prefix(length);
    const bool overlong = length == 3 && character < 0x800U;
    return overlong ? std::nullopt : std::optional(character);
}

std::optional<char> ByteOf(char32_t character) noexcept {
    const auto* const found = std::ranges::find(C1, character);
    if (found != C1.end()) {
        return static_cast<char>(0x80 + (found - C1.begin()));
    }
    const bool itself = character < 0x80U || (character >= 0xA0U && character <= 0xFFU);
    return itself ? std::optional(static_cast<char>(character)) : std::nullopt;
}

}  // namespace

char32_t CodePoint(char byte) noexcept {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80U && value < 0xA0U ? char32_t{C1[value - 0x80U]} : char32_t{value};
}

std::string ToUtf8(std::string_view text) {
    std::string result;
    for (const char byte : text) {
        const char32_t c = CodePoint(byte);
        if (c < 0x80U) {
            result += byte;
        } else if (c < 0x800U) {
            result += {static_cast<char>(0xC0U | c >> 6U), static_cast<char>(0x80U | (c & 0x3FU))};
        } else {
            result +=
                {static_cast<char>(0xE0U | c >> 12U), static_cast<char>(0x80U | (c >> 6U & 0x3FU)),
                 static_cast<char>(0x80U | (c & 0x3FU))};
        }
    }
    return result;
}

std::optional<std::string> FromUtf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::optional<char32_t> character = TakeCharacter(text);
        const std::optional<char> byte = character ? ByteOf(*character) : std::nullopt;
        if (!byte) {
            return std::nullopt;
        }
        result += *byte;
    }
    return result;
}

}  // namespace PLATFORM
