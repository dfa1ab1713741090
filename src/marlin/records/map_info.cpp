// SPDX-License-Identifier: MIT
#include <marlin/records/map_info.h>
#include <marlin/settings/section.h>

bool CMapInfo::Read(const Section& section) {
    section["SymbolizationType"] >> m_SymbolizationType;
    section["ScaleLevel"] >> m_ScaleLevel;
    section["DisplayType"] >> m_DisplayType;
    section["ShowTextGeneric"] >> m_TextGeneric;
    section["ShowTextOther"] >> m_TextOther;
    section["ShowChartContour"] >> m_ChartContour;
    section["ShowLightsInfo"] >> m_LightsInfo;
    section["AntiCluttering"] >> m_AntiCluttering;
    section["ShowBoundaries"] >> m_Boundaries;
    return true;
}

bool CMapInfo::Write(Section& section) const {
    section += SectionKey("SymbolizationType", m_SymbolizationType);
    section += SectionKey("ScaleLevel", m_ScaleLevel);
    section += SectionKey("DisplayType", m_DisplayType);
    section += SectionKey("ShowTextGeneric", m_TextGeneric);
    section += SectionKey("ShowTextOther", m_TextOther);
    section += SectionKey("ShowChartContour", m_ChartContour);
    section += SectionKey("ShowLightsInfo", m_LightsInfo);
    section += SectionKey("AntiCluttering", m_AntiCluttering);
    section += SectionKey("ShowBoundaries", m_Boundaries);
    return true;
}
