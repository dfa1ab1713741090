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
    enum LINESTYLE : int {
        SOLID_LINE = 0,
        DASHED_LINE = 1,
        DOTTED_LINE = 2,
        DASH_DOT_LINE = 3,
    };

    /// The text by which each style is stored.
    static const std::string STYLEDESCRIPTIONS[4];

    constexpr LineInfo() noexcept = default;

    [[nodiscard]] constexpr float Width() const noexcept { return m_Width; }
    [[nodiscard]] constexpr unsigned long Color() const noexcept { return m_Color; }
    [[nodiscard]] constexpr LINESTYLE Style() const noexcept { return m_Style; }
    /// The text of the style, which must be one of the four; release builds return the text of
    /// `SOLID_LINE` for any other.
    [[nodiscard]] const std::string& StyleStr() const noexcept;
    [[nodiscard]] constexpr bool Enable() const noexcept { return m_Enable; }

    /// Stores the absolute value.
    void SetWidth(float width) noexcept;
    constexpr void SetColor(unsigned long color) noexcept { m_Color = color; }
    constexpr void SetStyle(LINESTYLE style) noexcept { m_Style = style; }
    /// Takes the style of that text, ignoring case; `SOLID_LINE` for any other text.
    void SetStyleStr(const std::string& text) noexcept;
    constexpr void SetEnable(bool enable) noexcept { m_Enable = enable; }

    constexpr bool operator==(const LineInfo& other) const noexcept = default;

    /// "width,palette index,style text,color word,enable".
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, and keeps them if there are fewer than 3 items. A color word wins
    /// over the palette index; an item that does not convert is ignored.
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
