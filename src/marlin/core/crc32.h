// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <array>
#include <cstddef>

/// The CRC-32 of IEEE 802.3: reflected polynomial 0xEDB88320, register started at 0xFFFFFFFF,
/// result inverted. Check value 0xCBF43926 for the nine bytes "123456789".
namespace CRC32 {

/// The register before any byte.
inline constexpr unsigned int Start = 0xFFFFFFFFU;

/// A register for each value of a byte.
using Table = std::array<unsigned int, 256>;

/// `ByteTables[k][b]`: the register that byte `b` and `k` zero bytes after it leave of 0.
inline constexpr std::array<Table, 4> ByteTables = [] {
    std::array<Table, 4> tables{};
    for (unsigned int byte = 0; byte < 256; ++byte) {
        unsigned int value = byte;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1) ^ ((value & 1U) != 0 ? 0xEDB88320U : 0U);
        }
        tables[0][byte] = value;
    }
    for (std::size_t k = 1; k < tables.size(); ++k) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const unsigned int before = tables[k - 1][byte];
            tables[k][byte] = (before >> 8) ^ tables[0][before & 0xFFU];
        }
    }
    return tables;
}();

/// The register after the four bytes of a word, low byte first.
[[nodiscard]] constexpr unsigned int UpdateWord(unsigned int state, unsigned int word) noexcept {
    const unsigned int mixed = state ^ word;
    return ByteTables[3][mixed & 0xFFU] ^ ByteTables[2][(mixed >> 8) & 0xFFU] ^
           ByteTables[1][(mixed >> 16) & 0xFFU] ^ ByteTables[0][mixed >> 24];
}

/// The register after `size` bytes.
[[nodiscard]] MARLIN_API unsigned int Update(unsigned int state, const void* bytes,
                                             std::size_t size) noexcept;

}  // namespace CRC32
