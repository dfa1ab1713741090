// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// How a grid of plane (easting, northing) coordinates is drawn; drawing it is the host's work.
///
/// The style is a set of bits: 1 points, 2 lines in x, 4 lines in y, 8 ticks in x, 16 ticks in
/// y, 32 and 64 minor ticks in x and y, 128 a long tick at north. By default all ticks, no lines;
/// bits above the eighth are kept in memory and not stored. Nothing is checked.
///
/// Intervals are equal within `MATH::Equal`, all else exactly.
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

    /// Keys that are missing or unreadable keep intervals and tick sizes, but empty the marks and
    /// clear the style. Words of the style that are unknown are passed over; true.
    bool Read(const Section& section);
    /// Appends seven keys, whether or not the section has keys of those names. The marks stand
    /// between double quotes, which keep their blanks; quotes at the ends of a mark itself do not
    /// survive. True.
    bool Write(Section& section) const;
    /// The keys in the order of `Write` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    struct StyleWords;

    template <class Keys>
    void ForEachKey(const Keys& keys);

    [[nodiscard]] std::string FormatGridStyle() const;
    void UnFormatGridStyle(const std::string& text);
};
