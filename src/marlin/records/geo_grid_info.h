// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

class Section;

/// How a grid of latitudes and longitudes is drawn and labelled. The host draws it and gives the
/// two style codes their meaning. By default black, with 2 decimals, at intervals of 1/1800 degree
/// (2 seconds of arc). Setters check only the sign of the intervals. Equality compares intervals by
/// `MATH::Equal`, all other fields exactly.
///
/// @code
/// GeoGridInfo grid;
/// grid.LatInterval(0.5);
/// Section section("Graticule");
/// grid.Write(section);
/// GeoGridInfo read;
/// read.Read(section);
/// assert(read == grid && read.LatInterval() == 0.5);
/// @endcode
class MARLIN_API GeoGridInfo {
public:
    GeoGridInfo() = default;
    GeoGridInfo(const GeoGridInfo&) = default;
    GeoGridInfo(GeoGridInfo&&) = default;
    GeoGridInfo& operator=(const GeoGridInfo&) = default;
    GeoGridInfo& operator=(GeoGridInfo&&) = default;
    virtual ~GeoGridInfo();

    /// A color word of 32 bits: red is the lowest byte.
    [[nodiscard]] unsigned long GridColor() const noexcept { return m_GridColor; }
    /// A code of the host's labels, any integer.
    [[nodiscard]] int LatLonStyle() const noexcept { return m_LatLonStyle; }
    /// The number of decimals of the labels, not checked.
    [[nodiscard]] int LatLonDecimals() const noexcept { return m_LatLonDecimals; }
    /// True when the letter of the hemisphere is after the value, as in 54.5 N.
    [[nodiscard]] bool TrailingHemisphereIndicator() const noexcept {
        return m_TrailingHemisphereIndicator;
    }
    /// True when labels show the symbols of degrees, minutes and seconds.
    [[nodiscard]] bool DegMinSecSymbols() const noexcept { return m_DegMinSecSymbols; }
    /// A code of the host's lines, any integer.
    [[nodiscard]] int GridStyle() const noexcept { return m_GridStyle; }
    /// The distance of the parallels in degrees, never negative.
    [[nodiscard]] double LatInterval() const noexcept { return m_LatInterval; }
    /// The distance of the meridians in degrees, never negative.
    [[nodiscard]] double LonInterval() const noexcept { return m_LonInterval; }

    /// Stores the lower 32 bits.
    void GridColor(const unsigned long& color) noexcept { m_GridColor = color & 0xFFFFFFFF; }
    /// Stores the code unchecked.
    void LatLonStyle(int style) noexcept { m_LatLonStyle = style; }
    /// Stores the number unchecked.
    void LatLonDecimals(int decimals) noexcept { m_LatLonDecimals = decimals; }
    /// True puts the letter of the hemisphere after the value.
    void TrailingHemisphereIndicator(bool trailing) noexcept {
        m_TrailingHemisphereIndicator = trailing;
    }
    /// True shows the symbols of degrees, minutes and seconds.
    void DegMinSecSymbols(bool shown) noexcept { m_DegMinSecSymbols = shown; }
    /// Stores the code unchecked.
    void GridStyle(int style) noexcept { m_GridStyle = style; }
    /// Stores the absolute value.
    void LatInterval(double interval) noexcept;
    /// Stores the absolute value.
    void LonInterval(double interval) noexcept;

    /// Intervals within the tolerance of `MATH::Equal`, all else exactly.
    bool operator==(const GeoGridInfo& other) const noexcept;

    /// Returns true. Without a readable key a field stays as it was, but the color becomes black.
    /// "GridTrueColor" wins over the palette index "GridColor"; intervals lose their sign.
    bool Read(const Section& section);
    /// Appends nine keys, whether or not the section has keys of those names; returns true. The
    /// intervals are written with as many decimals as they need and two more.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    unsigned long m_GridColor = 0;
    int m_LatLonStyle = 0;
    int m_LatLonDecimals = 2;
    bool m_TrailingHemisphereIndicator = false;
    bool m_DegMinSecSymbols = false;
    int m_GridStyle = 1;
    double m_LatInterval = 1.0 / 1800.0;
    double m_LonInterval = 1.0 / 1800.0;
};
