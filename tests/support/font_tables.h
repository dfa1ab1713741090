// SPDX-License-Identifier: MIT
#pragma once

#include "support/temporary_folder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

/// Reads the tables of a TrueType file, big-endian, knowing nothing of how the library does it.
class FontTables {
public:
    explicit FontTables(const std::string& path) : m_Bytes(TemporaryFolder::Read(path)) {}

    [[nodiscard]] int UnitsPerEm() const { return Word(m_Head + 18); }
    [[nodiscard]] int HheaAscender() const { return Short(m_Hhea + 4); }
    [[nodiscard]] int HheaDescender() const { return Short(m_Hhea + 6); }
    [[nodiscard]] int HheaLineGap() const { return Short(m_Hhea + 8); }
    [[nodiscard]] int Weight() const { return Word(m_Os2 + 4); }
    [[nodiscard]] bool Italic() const { return (Word(m_Os2 + 62) & 1) != 0; }
    [[nodiscard]] int TypoAscender() const { return Short(m_Os2 + 68); }
    [[nodiscard]] int TypoDescender() const { return Short(m_Os2 + 70); }
    [[nodiscard]] int TypoLineGap() const { return Short(m_Os2 + 72); }
    [[nodiscard]] int WinAscent() const { return Word(m_Os2 + 74); }
    [[nodiscard]] int WinDescent() const { return Word(m_Os2 + 76); }
    [[nodiscard]] int Cell() const { return WinAscent() + WinDescent(); }

    /// The advance of a character in design units.
    [[nodiscard]] int Advance(unsigned int character) const {
        return Word(Table("hmtx") + 4 * std::min(Glyph(character), Size(m_Hhea + 34) - 1));
    }

    /// The box of a glyph's outline: left, bottom, right, top.
    [[nodiscard]] int Box(unsigned int character, std::size_t side) const {
        const bool longOffsets = Word(m_Head + 50) != 0;
        const std::size_t glyph = Glyph(character);
        const std::size_t loca = Table("loca");
        const std::size_t offset =
            longOffsets ? Long(loca + 4 * glyph) : 2 * Size(loca + 2 * glyph);
        return Short(Table("glyf") + offset + 2 + 2 * side);
    }

private:
    [[nodiscard]] std::size_t Size(std::size_t at) const {
        return static_cast<std::size_t>(static_cast<unsigned char>(m_Bytes.at(at))) << 8U |
               static_cast<unsigned char>(m_Bytes.at(at + 1));
    }
    [[nodiscard]] int Word(std::size_t at) const { return static_cast<int>(Size(at)); }
    [[nodiscard]] int Short(std::size_t at) const { return static_cast<std::int16_t>(Size(at)); }
    [[nodiscard]] std::size_t Long(std::size_t at) const { return Size(at) << 16U | Size(at + 2); }

    [[nodiscard]] std::size_t Table(const char* tag) const {
        std::size_t entry = 12;
        while (m_Bytes.compare(entry, 4, tag) != 0) {
            entry += 16;
        }
        return Long(entry + 8);
    }

    // By the subtable of Windows' Unicode plane, which is of format 4.
    [[nodiscard]] std::size_t Glyph(unsigned int character) const {
        const std::size_t cmap = Table("cmap");
        std::size_t record = cmap + 4;
        while (Word(record) != 3 || Word(record + 2) != 1) {
            record += 8;
        }
        const std::size_t map = cmap + Long(record + 4);
        const std::size_t doubled = Size(map + 6);
        std::size_t end = map + 14;
        while (character > Size(end)) {
            end += 2;
        }
        const std::size_t start = end + doubled + 2;
        const std::size_t delta = start + doubled;
        const std::size_t range = delta + doubled;
        if (character < Size(start)) {
            return 0;
        }
        const std::size_t listed = Word(range) == 0
                                       ? character
                                       : Size(range + Size(range) + 2 * (character - Size(start)));
        return listed == 0 ? 0 : (listed + Size(delta)) & 0xFFFFU;
    }

    std::string m_Bytes;
    std::size_t m_Head = Table("head");
    std::size_t m_Hhea = Table("hhea");
    std::size_t m_Os2 = Table("OS/2");
};
