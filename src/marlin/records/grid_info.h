// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// How a host draws a grid of plane coordinates (easting, northing).
///
/// The style is a sum of `STYLE` bits, by default all ticks and no lines; bits above the eighth are
/// kept in memory but not written. Lengths are in the host's units. Nothing is checked. Equality
/// compares intervals by `MATH::Equal`, all other fields exactly.
///
/// @code
/// GridInfo grid;
/// grid.Style = GridInfo::X_LINES | GridInfo::Y_LINES;
/// Section section("Grid");
/// grid.Write(section);
/// assert(section["GridStyle"].GetValue() == "X_LINES,Y_LINES");
/// @endcode
class MARLIN_API GridInfo {
public:
    /// What is drawn. The values are bits, and part of the interface.
    enum STYLE : int {
        POINTS = 1,           ///< points where lines would cross
        X_LINES = 2,          ///< lines in x
        Y_LINES = 4,          ///< lines in y
        X_TICKS = 8,          ///< ticks in x
        Y_TICKS = 16,         ///< ticks in y
        X_MINORTICKS = 32,    ///< smaller ticks between those in x
        Y_MINORTICKS = 64,    ///< smaller ticks between those in y
        LONG_NORTHTICK = 128  ///< a long tick at north
    };

    double XInterval = 50.0;  ///< Distance of the lines in x (easting).
    double YInterval = 50.0;  ///< Distance of the lines in y (northing).
    /// A sum of `STYLE` bits.
    int Style = X_TICKS | Y_TICKS | X_MINORTICKS | Y_MINORTICKS | LONG_NORTHTICK;
    float TickSize = 2.5F;       ///< Length of the ticks.
    float MinorTickSize = 1.0F;  ///< Length of the smaller ticks.
    std::string EastingMark;     ///< Text beside the easting labels.
    std::string NorthingMark;    ///< Text beside the northing labels.

    GridInfo() = default;
    GridInfo(const GridInfo&) = default;
    GridInfo(GridInfo&&) = default;
    GridInfo& operator=(const GridInfo&) = default;
    GridInfo& operator=(GridInfo&&) = default;
    virtual ~GridInfo();

    /// Intervals within the tolerance of `MATH::Equal`, all else exactly.
    bool operator==(const GridInfo& other) const noexcept;

    /// Returns true. Without a readable key intervals and tick sizes stay as they were, but the
    /// marks become empty and the style 0. Unknown words of the style are ignored, and so are
    /// blanks around its words.
    bool Read(const Section& section);
    /// Appends seven keys, whether or not the section has keys of those names; returns true. The
    /// marks are written between double quotes, which keep their blanks; quotes at the ends of a
    /// mark itself are lost.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    struct StyleWords;

    template <class Keys>
    void ForEachKey(const Keys& keys);

    [[nodiscard]] std::string FormatGridStyle() const;
    void UnFormatGridStyle(const std::string& text);
};
