// SPDX-License-Identifier: MIT
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/map_info.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

template <class Keys>
void CMapInfo::ForEachKey(const Keys& keys) {
    keys({"SymbolizationType", 1, "code of the symbols"}, m_SymbolizationType);
    keys({"ScaleLevel", 2, "code of the scale"}, m_ScaleLevel);
    keys({"DisplayType", 3, "code of the display"}, m_DisplayType);
    keys({"ShowTextGeneric", 4, "generic texts are shown"}, m_TextGeneric);
    keys({"ShowTextOther", 5, "other texts are shown"}, m_TextOther);
    keys({"ShowChartContour", 6, "the chart's contours are shown"}, m_ChartContour);
    keys({"ShowLightsInfo", 7, "lights are described"}, m_LightsInfo);
    keys({"AntiCluttering", 8, "crowded symbols are thinned out"}, m_AntiCluttering);
    keys({"ShowBoundaries", 9, "boundaries are shown"}, m_Boundaries);
}

bool CMapInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool CMapInfo::Write(Section& section) const {
    CMapInfo(*this).ForEachKey(KeyAppender(section));
    return true;
}

RecordFields CMapInfo::Fields() const {
    RecordFields fields;
    CMapInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
