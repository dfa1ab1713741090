// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The pen of a DXF export: width, color word, and a color mode, whose values belong to the host.
/// By default width 0, black, mode 0. Equality is exact.
///
/// @code
/// DXFInfo pen;
/// pen.SetColor(RGBColor(255, 0, 0));
/// assert(pen.ToString() == "0,10,0,255");  // 10 is red in the DXF palette
/// @endcode
class MARLIN_API DXFInfo {
public:
    constexpr DXFInfo() noexcept = default;

    /// In drawing units; negative where a file or a text says so.
    [[nodiscard]] constexpr float Width() const noexcept { return m_Width; }
    /// A color word of 32 bits: red is the lowest byte.
    [[nodiscard]] constexpr unsigned long Color() const noexcept { return m_Color; }
    /// A code of the host, any integer.
    [[nodiscard]] constexpr int ColorMode() const noexcept { return m_ColorMode; }

    /// Stores the absolute value.
    void SetWidth(float width) noexcept;
    /// Stores the lower 32 bits.
    constexpr void SetColor(unsigned long color) noexcept { m_Color = color & 0xFFFFFFFF; }
    /// Stores the code unchecked.
    constexpr void SetColorMode(int mode) noexcept { m_ColorMode = mode; }

    /// Exact, in all fields.
    constexpr bool operator==(const DXFInfo& other) const noexcept = default;

    /// "width,palette index,color mode,color word".
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, and keeps them if there are fewer than 3 items. A color word wins
    /// over the palette index; an item that does not convert is ignored. The width keeps its sign.
    void FromString(const std::string& text);

    /// Returns true. Without a readable key width and color mode stay as they were, but the color
    /// becomes black. "DXFLineTrueColor" wins over the palette index "DXFLineColor".
    bool Read(const Section& section);
    /// Appends four keys, whether or not the section has keys of those names; returns true.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    float m_Width = 0.0F;
    unsigned long m_Color = 0;
    int m_ColorMode = 0;
};
