// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

class Section;

/// The chart display options of a map layer. The host's chart renderer gives the three codes their
/// meaning; they are stored unchecked. Equality is exact.
///
/// @code
/// CMapInfo map;
/// map.SetLightsInfo(true);
/// Section section("Chart");
/// map.Write(section);
/// assert(section["ShowLightsInfo"].GetValue() == "1");
/// @endcode
class MARLIN_API CMapInfo {
public:
    constexpr CMapInfo() noexcept = default;

    /// A code of the host's chart renderer, any integer.
    [[nodiscard]] constexpr int SymbolizationType() const noexcept { return m_SymbolizationType; }
    /// A code of the host's chart renderer, any integer.
    [[nodiscard]] constexpr int ScaleLevel() const noexcept { return m_ScaleLevel; }
    /// A code of the host's chart renderer, any integer.
    [[nodiscard]] constexpr int DisplayType() const noexcept { return m_DisplayType; }
    /// Whether generic texts are shown.
    [[nodiscard]] constexpr bool TextGeneric() const noexcept { return m_TextGeneric; }
    /// Whether other texts are shown.
    [[nodiscard]] constexpr bool TextOther() const noexcept { return m_TextOther; }
    /// Whether the chart's own contours are shown.
    [[nodiscard]] constexpr bool ChartContour() const noexcept { return m_ChartContour; }
    /// Whether lights are described.
    [[nodiscard]] constexpr bool LightsInfo() const noexcept { return m_LightsInfo; }
    /// Whether crowded symbols are thinned out.
    [[nodiscard]] constexpr bool AntiCluttering() const noexcept { return m_AntiCluttering; }
    /// Whether boundaries are shown.
    [[nodiscard]] constexpr bool Boundaries() const noexcept { return m_Boundaries; }

    /// Stores the code unchecked.
    constexpr void SetSymbolizationType(int type) noexcept { m_SymbolizationType = type; }
    /// Stores the code unchecked.
    constexpr void SetScaleLevel(int level) noexcept { m_ScaleLevel = level; }
    /// Stores the code unchecked.
    constexpr void SetDisplayType(int type) noexcept { m_DisplayType = type; }
    /// True shows generic texts.
    constexpr void SetTextGeneric(bool show) noexcept { m_TextGeneric = show; }
    /// True shows other texts.
    constexpr void SetTextOther(bool show) noexcept { m_TextOther = show; }
    /// True shows the chart's own contours.
    constexpr void SetChartContour(bool show) noexcept { m_ChartContour = show; }
    /// True has lights described.
    constexpr void SetLightsInfo(bool show) noexcept { m_LightsInfo = show; }
    /// True has crowded symbols thinned out.
    constexpr void SetAntiCluttering(bool on) noexcept { m_AntiCluttering = on; }
    /// True shows boundaries.
    constexpr void SetBoundaries(bool show) noexcept { m_Boundaries = show; }

    /// Exact, in all fields.
    constexpr bool operator==(const CMapInfo& other) const noexcept = default;

    /// Returns true. A key that is missing or unreadable leaves its field as it was.
    bool Read(const Section& section);
    /// Appends nine keys, whether or not the section has keys of those names; returns true.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    int m_SymbolizationType = 0;
    int m_ScaleLevel = 0;
    int m_DisplayType = 2;
    bool m_TextGeneric = true;
    bool m_TextOther = false;
    bool m_ChartContour = true;
    bool m_LightsInfo = false;
    bool m_AntiCluttering = true;
    bool m_Boundaries = true;
};
