// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/math.h>
#include <marlin/base/text_functions.h>
#include <marlin/records/grid_info.h>
#include <marlin/settings/section.h>

#include <cstddef>
#include <iterator>

namespace {

// The word of each bit, the lowest first.
constexpr const char* styleWords[] = {"POINTS",  "X_LINES",      "Y_LINES",      "X_TICKS",
                                      "Y_TICKS", "X_MINORTICKS", "Y_MINORTICKS", "LONG_NORTHTICK"};

std::string Quoted(const std::string& mark) {
    return '"' + mark + '"';
}

void ReadMark(const SectionKey& key, std::string& mark) {
    key >> mark;
    trim(mark, "\"");
}

}  // namespace

GridInfo::~GridInfo() = default;

bool GridInfo::operator==(const GridInfo& other) const noexcept {
    return MinorTickSize == other.MinorTickSize && TickSize == other.TickSize &&
           Style == other.Style && MATH::Equal(XInterval, other.XInterval) &&
           MATH::Equal(YInterval, other.YInterval) && EastingMark == other.EastingMark &&
           NorthingMark == other.NorthingMark;
}

bool GridInfo::Read(const Section& section) {
    section["XInterval"] >> XInterval;
    section["YInterval"] >> YInterval;
    UnFormatGridStyle(section["GridStyle"].GetValue());
    section["TickSize"] >> TickSize;
    section["MinorTickSize"] >> MinorTickSize;
    ReadMark(section["EastingMark"], EastingMark);
    ReadMark(section["NorthingMark"], NorthingMark);
    return true;
}

bool GridInfo::Write(Section& section) const {
    section += SectionKey("XInterval", XInterval);
    section += SectionKey("YInterval", YInterval);
    section += SectionKey("GridStyle", FormatGridStyle());
    section += SectionKey("TickSize", TickSize);
    section += SectionKey("MinorTickSize", MinorTickSize);
    section += SectionKey("EastingMark", Quoted(EastingMark));
    section += SectionKey("NorthingMark", Quoted(NorthingMark));
    return true;
}

std::string GridInfo::FormatGridStyle() const {
    FormatString words(',');
    for (std::size_t bit = 0; bit < std::size(styleWords); ++bit) {
        if ((Style & (1 << bit)) != 0) {
            words += styleWords[bit];
        }
    }
    return words.String();
}

void GridInfo::UnFormatGridStyle(const std::string& text) {
    Style = 0;
    const FormatString words(text, ',');
    for (std::size_t bit = 0; bit < std::size(styleWords); ++bit) {
        if (words.HasSubString(styleWords[bit])) {
            Style |= 1 << bit;
        }
    }
}
