// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/color/dxf_color.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/settings/section.h>

#include <cmath>
#include <string>

namespace {

SectionKey IntervalKey(const char* name, double interval) {
    std::string text;
    MARLINSUITE::AppendFixed(text, interval, GetDoublePrecision(interval) + 2);
    return {name, text};
}

void ReadInterval(const SectionKey& key, double& interval) {
    key >> interval;
    interval = std::fabs(interval);
}

}  // namespace

GeoGridInfo::~GeoGridInfo() = default;

void GeoGridInfo::LatInterval(double interval) noexcept {
    m_LatInterval = std::fabs(interval);
}

void GeoGridInfo::LonInterval(double interval) noexcept {
    m_LonInterval = std::fabs(interval);
}

bool GeoGridInfo::operator==(const GeoGridInfo& other) const noexcept {
    return m_GridColor == other.m_GridColor && m_LatLonStyle == other.m_LatLonStyle &&
           m_GridStyle == other.m_GridStyle && MATH::Equal(m_LatInterval, other.m_LatInterval) &&
           MATH::Equal(m_LonInterval, other.m_LonInterval) &&
           m_LatLonDecimals == other.m_LatLonDecimals &&
           m_TrailingHemisphereIndicator == other.m_TrailingHemisphereIndicator &&
           m_DegMinSecSymbols == other.m_DegMinSecSymbols;
}

bool GeoGridInfo::Read(const Section& section) {
    ReadInterval(section["LonInterval"], m_LonInterval);
    ReadInterval(section["LatInterval"], m_LatInterval);
    section["LatLonStyle"] >> m_LatLonStyle;
    section["LatLonDecimals"] >> m_LatLonDecimals;
    section["TrailingHemisphereIndicator"] >> m_TrailingHemisphereIndicator;
    section["DegMinSecSymbols"] >> m_DegMinSecSymbols;
    section["GridStyle"] >> m_GridStyle;
    int index = 0;
    section["GridColor"] >> index;
    m_GridColor = static_cast<unsigned long>(DXFColor(index));
    section["GridTrueColor"] >> m_GridColor;
    return true;
}

bool GeoGridInfo::Write(Section& section) const {
    section += IntervalKey("LonInterval", m_LonInterval);
    section += IntervalKey("LatInterval", m_LatInterval);
    section += SectionKey("LatLonStyle", m_LatLonStyle);
    section += SectionKey("LatLonDecimals", m_LatLonDecimals);
    section += SectionKey("TrailingHemisphereIndicator", m_TrailingHemisphereIndicator);
    section += SectionKey("DegMinSecSymbols", m_DegMinSecSymbols);
    section += SectionKey("GridStyle", m_GridStyle);
    section += SectionKey("GridColor", DXFColor(m_GridColor).Index());
    section += SectionKey("GridTrueColor", m_GridColor);
    return true;
}
