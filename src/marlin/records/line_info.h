// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// How a line is drawn: width, color word, dash pattern and whether it is drawn at all. By
/// default a solid black line of width 0.1 that is drawn. Setters and readers check nothing but
/// the sign of the width. Equality is exact.
class MARLIN_API LineInfo {
public:
    enum LINESTYLE : int {
        SOLID_LINE = 0,
        DASHED_LINE = 1,
        DOTTED_LINE = 2,
        DASH_DOT_LINE = 3,
    };

    /// The text of each style, by which it is stored.
    static const std::string STYLEDESCRIPTIONS[4];

    constexpr LineInfo() noexcept = default;

    [[nodiscard]] constexpr float Width() const noexcept { return m_Width; }
    [[nodiscard]] constexpr unsigned long Color() const noexcept { return m_Color; }
    [[nodiscard]] constexpr LINESTYLE Style() const noexcept { return m_Style; }
    /// The style's text. The style must be one of the four; release builds answer any other
    /// with the text of `SOLID_LINE`.
    [[nodiscard]] const std::string& StyleStr() const noexcept;
    [[nodiscard]] constexpr bool Enable() const noexcept { return m_Enable; }

    /// Stores the absolute value.
    void SetWidth(float width) noexcept;
    constexpr void SetColor(unsigned long color) noexcept { m_Color = color; }
    constexpr void SetStyle(LINESTYLE style) noexcept { m_Style = style; }
    /// By its text, ignoring case; `SOLID_LINE` for any other text.
    void SetStyleStr(const std::string& text) noexcept;
    constexpr void SetEnable(bool enable) noexcept { m_Enable = enable; }

    constexpr bool operator==(const LineInfo& other) const noexcept = default;

    /// "width,palette index,style text,color word,enable".
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, and stays there with fewer than 3 items. The color word, when
    /// there is one, wins over the palette index; an item that does not convert is passed over.
    void FromString(const std::string& text);

    /// Keys that are missing or unreadable keep width and enable, but reset color and style to
    /// black and `SOLID_LINE`. "LineTrueColor" wins over the palette index "LineColor". True.
    bool Read(const Section& section);
    /// Appends five keys, whether or not the section has keys of those names; true.
    bool Write(Section& section) const;
    /// The keys in the order of `Write` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    float m_Width = 0.1F;
    unsigned long m_Color = 0;
    LINESTYLE m_Style = SOLID_LINE;
    bool m_Enable = true;
};
