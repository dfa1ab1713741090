// SPDX-License-Identifier: MIT
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/detail/pen_items.h>
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/dxf_info.h>

#include <cmath>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

void DXFInfo::SetWidth(float width) noexcept {
    m_Width = std::fabs(width);
}

std::string DXFInfo::ToString() const {
    return JoinPen(m_Width, DXFColor(m_Color).Index(), m_ColorMode, m_Color);
}

void DXFInfo::FromString(const std::string& text) {
    *this = DXFInfo();
    const CMarlinString items = SplitPen(text);
    // So short a text is no pen, and its first items may mean something else.
    if (items.Size() < FewestPenItems) {
        return;
    }
    items.GetItem(0, m_Width);
    m_Color = PenColor(items);
    items.GetItem(2, m_ColorMode);
}

// The exact color comes after the palette index, so that it wins in a file that has both.
template <class Keys>
void DXFInfo::ForEachKey(const Keys& keys) {
    keys({"DXFLineColor", 2, "color"}, PaletteIndex(m_Color));
    keys({"DXFLineTrueColor", 2, "color"}, m_Color);
    keys({"DXFLineWidth", 1, "width"}, m_Width);
    keys({"DXFColorMode", 3, "color mode"}, m_ColorMode);
}

bool DXFInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool DXFInfo::Write(Section& section) const {
    DXFInfo(*this).ForEachKey(KeyAppender(section));
    return true;
}

RecordFields DXFInfo::Fields() const {
    RecordFields fields;
    DXFInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
