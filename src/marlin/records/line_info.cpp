// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/detail/pen_items.h>
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/line_info.h>

#include <cassert>
#include <cmath>
#include <cstddef>
#include <iterator>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

constexpr NamedValue styles[] = {
    {LineInfo::SOLID_LINE, "Solid Line", "solid"},
    {LineInfo::DASHED_LINE, "Dashed", "dashed"},
    {LineInfo::DOTTED_LINE, "Dot", "dotted"},
    {LineInfo::DASH_DOT_LINE, "Dash dot", "dashes and dots in turn"},
};

struct StyleText {
    LineInfo& Line;

    // A missing key reads as an empty text, which makes the line solid.
    void Read(const SectionKey& key) { Line.SetStyleStr(key.GetValue()); }
    void Write(SectionKey& key) const { key << Line.StyleStr(); }
    [[nodiscard]] RecordValue Value() const { return Line.StyleStr(); }
};

}  // namespace

[[gnu::init_priority(LoadValues)]] const std::string LineInfo::STYLEDESCRIPTIONS[4] = {
    styles[0].Text, styles[1].Text, styles[2].Text, styles[3].Text};

const std::string& LineInfo::StyleStr() const noexcept {
    const auto style = static_cast<std::size_t>(m_Style);
    const bool known = style < std::size(STYLEDESCRIPTIONS);
    assert(known);
    return STYLEDESCRIPTIONS[known ? style : 0];
}

void LineInfo::SetWidth(float width) noexcept {
    m_Width = std::fabs(width);
}

void LineInfo::SetStyleStr(const std::string& text) noexcept {
    m_Style = static_cast<LINESTYLE>(ValueOfText(styles, text, SOLID_LINE));
}

std::string LineInfo::ToString() const {
    return JoinPen(m_Width, DXFColor(m_Color).Index(), StyleStr().c_str(), m_Color, m_Enable);
}

void LineInfo::FromString(const std::string& text) {
    *this = LineInfo();
    const CMarlinString items = SplitPen(text);
    // So short a text is no line, and its first items may mean something else.
    if (items.Size() < FewestPenItems) {
        return;
    }
    items.GetItem(0, m_Width);
    m_Color = PenColor(items);
    SetStyleStr(items[2].GetString());
    items.GetItem(4, m_Enable);
}

// The exact color comes after the palette index, so that it wins in a file that has both.
template <class Keys>
void LineInfo::ForEachKey(const Keys& keys) {
    keys({"LineColor", 3, "color"}, PaletteIndex(m_Color));
    keys(Common({"LineWidth", 2, "width"}), m_Width);
    keys({.Name = "LineStyle", .Field = 4, .Meaning = "dash pattern", .Values = styles},
         StyleText{*this});
    keys({"LineTrueColor", 3, "color"}, m_Color);
    keys(Common({"Enable", 1, "the line is drawn"}), m_Enable);
}

bool LineInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool LineInfo::Write(Section& section) const {
    LineInfo(*this).ForEachKey(KeyAppender(section));
    return true;
}

RecordFields LineInfo::Fields() const {
    RecordFields fields;
    LineInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
