// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace PLATFORM {

namespace {

// The code points of the bytes 0x80 to 0x9F; every other byte is its own code point.
constexpr unsigned char firstSpecial = 0x80;
constexpr std::array<char32_t, 32> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// A code point at the start of a text and the bytes that it takes; none for what is not UTF-8.
struct Character {
    char32_t CodePoint = 0;
    std::size_t Size = 0;
};

struct Lead {
    unsigned char Mask;
    unsigned char Bits;
    std::size_t Size;
    char32_t Smallest;  // a smaller one has a shorter form
};
constexpr std::array<Lead, 4> leads = {
    {{0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

Character FirstCharacter(std::string_view text) noexcept {
    const auto first = static_cast<unsigned char>(text.front());
    const auto* const lead = std::ranges::find_if(
        leads, [first](const Lead& form) { return (first & form.Mask) == form.Bits; });
    if (lead == leads.end() || text.size() < lead->Size) {
        return {};
    }
    char32_t codePoint = first & static_cast<unsigned char>(~lead->Mask);
    for (const char next : text.substr(1, lead->Size - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0U) != 0x80U) {
            return {};
        }
        codePoint = codePoint << 6U | (byte & 0x3FU);
    }
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < lead->Smallest || codePoint > 0x10FFFF || isSurrogate) {
        return {};
    }
    return {codePoint, lead->Size};
}

// Three bytes are enough: the characters of the code page are below 0x10000.
void AppendUtf8(std::string& text, char32_t codePoint) {
    const auto append = [&text](char32_t bits) {
        text += static_cast<char>(static_cast<unsigned char>(bits));
    };
    if (codePoint < 0x80) {
        append(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        append(0xC0U | codePoint >> 6U);
    } else {
        append(0xE0U | codePoint >> 12U);
        append(0x80U | (codePoint >> 6U & 0x3FU));
    }
    append(0x80U | (codePoint & 0x3FU));
}

}  // namespace

char32_t CodePointOf(unsigned char byte) noexcept {
    const std::size_t special = static_cast<std::size_t>(byte) - firstSpecial;
    return special < specials.size() ? specials[special] : byte;
}

std::optional<unsigned char> ByteOf(char32_t codePoint) noexcept {
    if (codePoint < firstSpecial || (codePoint > 0x9F && codePoint <= 0xFF)) {
        return static_cast<unsigned char>(codePoint);
    }
    const auto* const found = std::ranges::find(specials, codePoint);
    return found == specials.end() ? std::nullopt
                                   : std::optional(static_cast<unsigned char>(
                                         firstSpecial + (found - specials.begin())));
}

std::string ToUtf8(std::string_view text) {
    if (IsUtf8(text)) {
        return std::string(text);
    }
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        AppendUtf8(utf8, CodePointOf(static_cast<unsigned char>(c)));
    }
    return utf8;
}

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        text += static_cast<char>(ByteOf(TakeCodePoint(utf8)).value_or('?'));
    }
    return text;
}

bool IsUtf8(std::string_view bytes) noexcept {
    while (!bytes.empty()) {
        const std::size_t size = FirstCharacter(bytes).Size;
        if (size == 0) {
            return false;
        }
        bytes.remove_prefix(size);
    }
    return true;
}

char32_t TakeCodePoint(std::string_view& utf8) noexcept {
    constexpr char32_t replacement = 0xFFFD;
    const Character character = FirstCharacter(utf8);
    utf8.remove_prefix(std::max<std::size_t>(character.Size, 1));
    return character.Size == 0 ? replacement : character.CodePoint;
}

}  // namespace PLATFORM
