// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/color/dxf_color.h>
#include <marlin/records/detail/color_items.h>
#include <marlin/records/dxf_info.h>
#include <marlin/settings/section.h>

#include <cmath>
#include <string_view>

void DXFInfo::SetWidth(float width) noexcept {
    m_Width = std::fabs(width);
}

std::string DXFInfo::ToString() const {
    CMarlinString items(',');
    MARLINSUITE::SetValue(items, 0, m_Width);
    MARLINSUITE::SetValue(items, 1, DXFColor(m_Color).Index());
    MARLINSUITE::SetValue(items, 2, m_ColorMode);
    MARLINSUITE::SetValue(items, 3, m_Color);
    return items.String().GetString();
}

void DXFInfo::FromString(const std::string& text) {
    *this = DXFInfo();
    const CMarlinString items(CString(std::string_view(text)), ',', true);
    if (items.Size() < 3) {
        return;
    }
    items.GetItem(0, m_Width);
    m_Color = MARLINSUITE::PaletteColorItem(items, 1);
    items.GetItem(2, m_ColorMode);
    MARLINSUITE::ReadColorItem(items, 3, m_Color);
}

bool DXFInfo::Read(const Section& section) {
    int index = 0;
    section["DXFLineColor"] >> index;
    m_Color = static_cast<unsigned long>(DXFColor(index));
    section["DXFLineTrueColor"] >> m_Color;
    section["DXFLineWidth"] >> m_Width;
    section["DXFColorMode"] >> m_ColorMode;
    return true;
}

bool DXFInfo::Write(Section& section) const {
    section += SectionKey("DXFLineColor", DXFColor(m_Color).Index());
    section += SectionKey("DXFLineTrueColor", m_Color);
    section += SectionKey("DXFLineWidth", m_Width);
    section += SectionKey("DXFColorMode", m_ColorMode);
    return true;
}
