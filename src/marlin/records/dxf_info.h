// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The pen of a DXF export: width, color word, and a color mode whose values are the host's. By
/// default width 0, black, mode 0. Equality is exact.
class MARLIN_API DXFInfo {
public:
    constexpr DXFInfo() noexcept = default;

    [[nodiscard]] constexpr float Width() const noexcept { return m_Width; }
    [[nodiscard]] constexpr unsigned long Color() const noexcept { return m_Color; }
    [[nodiscard]] constexpr int ColorMode() const noexcept { return m_ColorMode; }

    /// Stores the absolute value.
    void SetWidth(float width) noexcept;
    constexpr void SetColor(unsigned long color) noexcept { m_Color = color; }
    constexpr void SetColorMode(int mode) noexcept { m_ColorMode = mode; }

    constexpr bool operator==(const DXFInfo& other) const noexcept = default;

    /// "width,palette index,color mode,color word".
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, and stays there with fewer than 3 items. The color word, when
    /// there is one, wins over the palette index; an item that does not convert is passed over.
    void FromString(const std::string& text);

    /// Keys that are missing or unreadable keep width and color mode, but reset the color to
    /// black. "DXFLineTrueColor" wins over the palette index "DXFLineColor". True.
    bool Read(const Section& section);
    /// Appends four keys, whether or not the section has keys of those names; true.
    bool Write(Section& section) const;
    /// The keys in the order of `Write` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    float m_Width = 0.0F;
    unsigned long m_Color = 0;
    int m_ColorMode = 0;
};
