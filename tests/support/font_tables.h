// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

/// Reads the tables of a TrueType file, big-endian, knowing nothing of how the library does it.
class FontTables {
public:
    explicit FontTables(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        m_Bytes.assign(std::istreambuf_iterator<char>(stream), {});
        m_Head = Table("head");
        m_Hhea = Table("hhea");
        m_Os2 = Table("OS/2");
        m_Hmtx = Table("hmtx");
        m_Cmap = UnicodeMap();
    }

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
        const int glyph = Glyph(character);
        const int last = Word(m_Hhea + 34) - 1;
        return Word(m_Hmtx + 4 * static_cast<std::size_t>(glyph < last ? glyph : last));
    }

    /// The box of a glyph's outline: left, bottom, right, top.
    [[nodiscard]] int Box(unsigned int character, std::size_t side) const {
        const bool longOffsets = Word(m_Head + 50) != 0;
        const auto glyph = static_cast<std::size_t>(Glyph(character));
        const std::size_t loca = Table("loca");
        const std::size_t offset = longOffsets
                                       ? Long(loca + 4 * glyph)
                                       : 2 * static_cast<std::size_t>(Word(loca + 2 * glyph));
        return Short(Table("glyf") + offset + 2 + 2 * side);
    }

private:
    [[nodiscard]] std::size_t Byte(std::size_t at) const {
        return static_cast<unsigned char>(m_Bytes.at(at));
    }
    [[nodiscard]] int Word(std::size_t at) const {
        return static_cast<int>(Byte(at) << 8U | Byte(at + 1));
    }
    [[nodiscard]] int Short(std::size_t at) const {
        return static_cast<std::int16_t>(static_cast<std::uint16_t>(Word(at)));
    }
    [[nodiscard]] std::size_t Long(std::size_t at) const {
        return static_cast<std::size_t>(Word(at)) << 16U | static_cast<std::size_t>(Word(at + 2));
    }

    [[nodiscard]] std::size_t Table(const std::string& tag) const {
        for (std::size_t i = 0; i < static_cast<std::size_t>(Word(4)); ++i) {
            if (m_Bytes.compare(12 + 16 * i, 4, tag) == 0) {
                return Long(12 + 16 * i + 8);
            }
        }
        return m_Bytes.size();
    }

    // The subtable of Windows' Unicode plane, which is of format 4.
    [[nodiscard]] std::size_t UnicodeMap() const {
        const std::size_t cmap = Table("cmap");
        for (std::size_t i = 0; i < static_cast<std::size_t>(Word(cmap + 2)); ++i) {
            const std::size_t record = cmap + 4 + 8 * i;
            if (Word(record) == 3 && Word(record + 2) == 1) {
                return cmap + Long(record + 4);
            }
        }
        return m_Bytes.size();
    }

    [[nodiscard]] int Glyph(unsigned int character) const {
        const auto code = static_cast<int>(character);
        const auto doubled = static_cast<std::size_t>(Word(m_Cmap + 6));
        for (std::size_t i = 0; i < doubled; i += 2) {
            const std::size_t end = m_Cmap + 14 + i;
            const std::size_t start = end + doubled + 2;
            const std::size_t delta = start + doubled;
            const std::size_t range = delta + doubled;
            if (code > Word(end)) {
                continue;
            }
            if (code < Word(start)) {
                return 0;
            }
            if (Word(range) == 0) {
                return (code + Word(delta)) & 0xFFFF;
            }
            const auto index = static_cast<std::size_t>(Word(range) + 2 * (code - Word(start)));
            const int glyph = Word(range + index);
            return glyph == 0 ? 0 : (glyph + Word(delta)) & 0xFFFF;
        }
        return 0;
    }

    std::string m_Bytes;
    std::size_t m_Head = 0;
    std::size_t m_Hhea = 0;
    std::size_t m_Os2 = 0;
    std::size_t m_Hmtx = 0;
    std::size_t m_Cmap = 0;
};
