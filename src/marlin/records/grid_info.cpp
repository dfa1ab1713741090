// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/math.h>
#include <marlin/base/text_functions.h>
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/grid_info.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

constexpr NamedValue parts[] = {
    {0, "", "nothing is drawn"},
    {GridInfo::POINTS, "POINTS", "points"},
    {GridInfo::X_LINES, "X_LINES", "x lines"},
    {GridInfo::Y_LINES, "Y_LINES", "y lines"},
    {GridInfo::X_TICKS, "X_TICKS", "x ticks"},
    {GridInfo::Y_TICKS, "Y_TICKS", "y ticks"},
    {GridInfo::X_MINORTICKS, "X_MINORTICKS", "x minor ticks"},
    {GridInfo::Y_MINORTICKS, "Y_MINORTICKS", "y minor ticks"},
    {GridInfo::LONG_NORTHTICK, "LONG_NORTHTICK", "long tick at north"},
};

// A mark is kept between double quotes, which save its blanks from being trimmed.
struct QuotedMark {
    std::string& Mark;

    void Read(const SectionKey& key) {
        key >> Mark;
        trim(Mark, "\"");
    }
    void Write(SectionKey& key) const { key << '"' + Mark + '"'; }
    [[nodiscard]] RecordValue Value() const { return Mark; }
};

}  // namespace

struct GridInfo::StyleWords {
    GridInfo& Grid;

    void Read(const SectionKey& key) { Grid.UnFormatGridStyle(key.GetValue()); }
    void Write(SectionKey& key) const { key << Grid.FormatGridStyle(); }
    [[nodiscard]] RecordValue Value() const { return Grid.Style; }
};

// Not in the header, so that the library alone has the table of virtual functions.
GridInfo::~GridInfo() = default;

bool GridInfo::operator==(const GridInfo& other) const noexcept {
    return MinorTickSize == other.MinorTickSize && TickSize == other.TickSize &&
           Style == other.Style && MATH::Equal(XInterval, other.XInterval) &&
           MATH::Equal(YInterval, other.YInterval) && EastingMark == other.EastingMark &&
           NorthingMark == other.NorthingMark;
}

template <class Keys>
void GridInfo::ForEachKey(const Keys& keys) {
    keys({"XInterval", 1, "distance of the lines in x"}, XInterval);
    keys({"YInterval", 2, "distance of the lines in y"}, YInterval);
    keys({.Name = "GridStyle",
          .Field = 3,
          .Meaning = "what is drawn",
          .Values = parts,
          .AreBits = true,
          .IsCommon = true},
         StyleWords{*this});
    keys({"TickSize", 4, "length of the ticks"}, TickSize);
    keys({"MinorTickSize", 5, "length of the minor ticks"}, MinorTickSize);
    keys({"EastingMark", 6, "text beside the eastings"}, QuotedMark{EastingMark});
    keys({"NorthingMark", 7, "text beside the northings"}, QuotedMark{NorthingMark});
}

bool GridInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool GridInfo::Write(Section& section) const {
    GridInfo(*this).ForEachKey(KeyAppender(section));
    return true;
}

RecordFields GridInfo::Fields() const {
    RecordFields fields;
    GridInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}

std::string GridInfo::FormatGridStyle() const {
    FormatString words(',');
    for (const auto& [bit, word, meaning] : parts) {
        if ((Style & bit) != 0) {
            words += word;
        }
    }
    return words.String();
}

void GridInfo::UnFormatGridStyle(const std::string& text) {
    Style = 0;
    const FormatString items(text, ',');
    FormatString words(',');
    for (int i = 0; i < items.Size(); ++i) {
        std::string word = items[i];
        trim(word, " \t");  // people put a blank after a comma
        words += word;
    }
    // Whole words count: "X_MINORTICKS" does not hold "X_TICKS". The part without a word has no
    // bit.
    for (const auto& [bit, word, meaning] : parts) {
        Style |= words.HasSubString(word) ? bit : 0;
    }
}
