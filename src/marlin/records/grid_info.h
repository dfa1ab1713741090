// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// How a host draws a grid of plane coordinates (easting, northing).
///
/// The style is a set of bits: 1 points, 2 lines in x, 4 lines in y, 8 ticks in x, 16 ticks in
/// y, 32 and 64 minor ticks in x and y, 128 a long tick at north. By default all ticks, no lines;
/// bits above the eighth are kept in memory but not written. Nothing is checked. Equality compares
/// intervals by `MATH::Equal`, all other fields exactly.
///
/// @code
/// GridInfo grid;
/// grid.Style = 2 + 4;
/// Section section("Grid");
/// grid.Write(section);
/// assert(section["GridStyle"].GetValue() == "X_LINES,Y_LINES");
/// @endcode
class MARLIN_API GridInfo {
public:
    double XInterval = 50.0;
    double YInterval = 50.0;
    int Style = 248;
    float TickSize = 2.5F;
    float MinorTickSize = 1.0F;
    std::string EastingMark;   ///< Text beside the easting labels.
    std::string NorthingMark;  ///< Text beside the northing labels.

    GridInfo() = default;
    GridInfo(const GridInfo&) = default;
    GridInfo& operator=(const GridInfo&) = default;
    virtual ~GridInfo();

    bool operator==(const GridInfo& other) const noexcept;

    /// Returns true. Without a readable key intervals and tick sizes stay as they were, but the
    /// marks become empty and the style 0. Unknown words of the style are ignored.
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
