// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/ascii.h>
#include <marlin/core/crc32.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace MARLINSUITE {

// The register is linear in what it is fed: that of a whole text is the exclusive or of what
// each character leaves behind on its own. Names up to this length are hashed by look-ups that
// do not wait for one another.
inline constexpr std::size_t NameTableLength = 32;

[[nodiscard]] constexpr unsigned int FedCharacter(unsigned char byte) noexcept {
    const char upper = PLATFORM::ToUpper(static_cast<char>(byte));
    return static_cast<unsigned int>(static_cast<int>(static_cast<signed char>(upper)));
}

/// [k][c]: what the character c leaves in the register when k characters follow it.
inline constexpr auto NameTables = [] {
    std::array<CRC32::Table, NameTableLength> tables{};
    for (unsigned int c = 0; c < 256; ++c) {
        unsigned int state = CRC32::UpdateWord(0, FedCharacter(static_cast<unsigned char>(c)));
        for (CRC32::Table& table : tables) {
            table[c] = state;
            state = CRC32::UpdateWord(state, 0);
        }
    }
    return tables;
}();

/// [n]: what the start value has become after n characters.
inline constexpr auto NameStartValues = [] {
    std::array<unsigned int, NameTableLength + 1> values{};
    unsigned int state = CRC32::Start;
    for (unsigned int& value : values) {
        value = state;
        state = CRC32::UpdateWord(state, 0);
    }
    return values;
}();

[[nodiscard]] inline unsigned int HashOfLongName(std::string_view text) noexcept {
    unsigned int state = CRC32::Start;
    for (const char c : text) {
        state = CRC32::UpdateWord(state, FedCharacter(static_cast<unsigned char>(c)));
    }
    return ~state;
}

[[nodiscard]] inline unsigned int Left(const CRC32::Table& table, char c) noexcept {
    return table[static_cast<unsigned char>(c)];
}

/// The hash of a name, see `HashedString::ComputeHashValue`.
[[nodiscard]] inline unsigned int HashOfName(std::string_view text) noexcept {
    const std::size_t size = text.size();
    if (size > NameTableLength) {
        return HashOfLongName(text);
    }
    unsigned int state = NameStartValues[size];
    const CRC32::Table* table = NameTables.data() + size;
    const char* at = text.data();
    const char* const end = at + size;
    for (; end - at >= 4; at += 4, table -= 4) {  // unrolled by hand, since compilers do not
        state ^= Left(table[-1], at[0]) ^ Left(table[-2], at[1]) ^ Left(table[-3], at[2]) ^
                 Left(table[-4], at[3]);
    }
    for (; at != end; ++at) {
        state ^= Left(*--table, *at);
    }
    return ~state;
}

}  // namespace MARLINSUITE
