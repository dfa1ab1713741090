// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// How a line is drawn: width, color word, dash pattern, and whether it is drawn at all. By default
/// a solid black line of width 0.1 that is drawn. Only `SetWidth` checks, the sign. Equality is
/// exact.
///
/// @code
/// LineInfo coast;
/// coast.SetColor(RGBColor(0, 64, 128));
/// coast.SetStyleStr("dashed");
/// Section section("Coastline");
/// coast.Write(section);
/// LineInfo read;
/// read.Read(section);
/// assert(read == coast && read.Style() == LineInfo::DASHED_LINE);
/// @endcode
class MARLIN_API LineInfo {
public:
    /// The dash patterns. Their numbers are part of the interface.
    enum LINESTYLE : int {
        SOLID_LINE = 0,     ///< "Solid Line": without a gap
        DASHED_LINE = 1,    ///< "Dashed"
        DOTTED_LINE = 2,    ///< "Dot"
        DASH_DOT_LINE = 3,  ///< "Dash dot": dashes and dots in turn
    };

    /// The text by which each style is stored.
    static const std::string STYLEDESCRIPTIONS[4];

    constexpr LineInfo() noexcept = default;

    /// In the host's units; negative where a file or a text says so.
    [[nodiscard]] constexpr float Width() const noexcept { return m_Width; }
    /// A color word of 32 bits: red is the lowest byte.
    [[nodiscard]] constexpr unsigned long Color() const noexcept { return m_Color; }
    /// One of the four, unless a host has stored another number.
    [[nodiscard]] constexpr LINESTYLE Style() const noexcept { return m_Style; }
    /// The text of the style, which must be one of the four; release builds return the text of
    /// `SOLID_LINE` for any other.
    [[nodiscard]] const std::string& StyleStr() const noexcept;
    /// Whether the line is drawn.
    [[nodiscard]] constexpr bool Enable() const noexcept { return m_Enable; }

    /// Stores the absolute value.
    void SetWidth(float width) noexcept;
    /// Stores the lower 32 bits.
    constexpr void SetColor(unsigned long color) noexcept { m_Color = color & 0xFFFFFFFF; }
    /// Stores the style unchecked.
    constexpr void SetStyle(LINESTYLE style) noexcept { m_Style = style; }
    /// Takes the style of that text, ignoring case; `SOLID_LINE` for any other text.
    void SetStyleStr(const std::string& text) noexcept;
    /// Whether the line is to be drawn.
    constexpr void SetEnable(bool enable) noexcept { m_Enable = enable; }

    /// Exact, in all fields.
    constexpr bool operator==(const LineInfo& other) const noexcept = default;

    /// "width,palette index,style text,color word,enable".
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, and keeps them if there are fewer than 3 items. A color word wins
    /// over the palette index; an item that does not convert is ignored. The width keeps its sign.
    void FromString(const std::string& text);

    /// Returns true. Without a readable key width and enable stay as they were, but the color
    /// becomes black and the style `SOLID_LINE`. "LineTrueColor" wins over the palette index
    /// "LineColor".
    bool Read(const Section& section);
    /// Appends five keys, whether or not the section has keys of those names; returns true.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    float m_Width = 0.1F;
    unsigned long m_Color = 0;
    LINESTYLE m_Style = SOLID_LINE;
    bool m_Enable = true;
};
