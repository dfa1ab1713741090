// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/records/detail/color_items.h>
#include <marlin/records/line_info.h>
#include <marlin/settings/section.h>

#include <cassert>
#include <cmath>
#include <cstddef>
#include <iterator>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const std::string LineInfo::STYLEDESCRIPTIONS[4] = {
    "Solid Line", "Dashed", "Dot", "Dash dot"};

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
    m_Style = SOLID_LINE;
    for (std::size_t i = 0; i < std::size(STYLEDESCRIPTIONS); ++i) {
        if (icompare(text, STYLEDESCRIPTIONS[i])) {
            m_Style = static_cast<LINESTYLE>(i);
            return;
        }
    }
}

std::string LineInfo::ToString() const {
    CMarlinString items(',');
    MARLINSUITE::SetValue(items, 0, m_Width);
    MARLINSUITE::SetValue(items, 1, DXFColor(m_Color).Index());
    items.SetItem(2, CString(StyleStr().c_str()));
    MARLINSUITE::SetValue(items, 3, m_Color);
    MARLINSUITE::SetValue(items, 4, m_Enable);
    return items.String().GetString();
}

void LineInfo::FromString(const std::string& text) {
    *this = LineInfo();
    const CMarlinString items(CString(std::string_view(text)), ',', true);
    if (items.Size() < 3) {
        return;
    }
    items.GetItem(0, m_Width);
    m_Color = MARLINSUITE::PaletteColorItem(items, 1);
    CString style;
    items.GetItem(2, style);
    SetStyleStr(style.GetString());
    MARLINSUITE::ReadColorItem(items, 3, m_Color);
    items.GetItem(4, m_Enable);
}

bool LineInfo::Read(const Section& section) {
    int index = 0;
    section["LineColor"] >> index;
    m_Color = static_cast<unsigned long>(DXFColor(index));
    section["LineWidth"] >> m_Width;
    SetStyleStr(section["LineStyle"].GetValue());
    section["LineTrueColor"] >> m_Color;
    section["Enable"] >> m_Enable;
    return true;
}

bool LineInfo::Write(Section& section) const {
    section += SectionKey("LineColor", DXFColor(m_Color).Index());
    section += SectionKey("LineWidth", m_Width);
    section += SectionKey("LineStyle", StyleStr());
    section += SectionKey("LineTrueColor", m_Color);
    section += SectionKey("Enable", m_Enable);
    return true;
}
