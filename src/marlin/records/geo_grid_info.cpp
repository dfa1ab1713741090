// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/geo_grid_info.h>

#include <cmath>
#include <string>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

constexpr NamedValue hemisphereLetter[] = {
    {0, "", "the hemisphere's letter leads"},
    {1, "", "the hemisphere's letter follows"},
};

// Six decimals of a degree are 0.1 m, too coarse for an interval that is added many times: each
// is written with as many decimals as it needs and two more.
struct Interval {
    double& Angle;

    void Read(const SectionKey& key) {
        key >> Angle;
        Angle = std::fabs(Angle);
    }
    void Write(SectionKey& key) const {
        std::string text;
        AppendFixed(text, Angle, GetDoublePrecision(Angle) + 2);
        key << text;
    }
    [[nodiscard]] RecordValue Value() const { return Angle; }
};

}  // namespace

// Not in the header, so that the library alone has the table of virtual functions.
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

// The exact color comes after the palette index, so that it wins in a file that has both.
template <class Keys>
void GeoGridInfo::ForEachKey(const Keys& keys) {
    keys({"LonInterval", 1, "distance of the meridians", RecordKey::Degrees},
         Interval{m_LonInterval});
    keys({"LatInterval", 2, "distance of the parallels", RecordKey::Degrees},
         Interval{m_LatInterval});
    keys({"LatLonStyle", 3, "style code of the labels"}, m_LatLonStyle);
    keys({"LatLonDecimals", 4, "decimals of the labels"}, m_LatLonDecimals);
    keys({"TrailingHemisphereIndicator", 5, "place of the hemisphere's letter", "",
          hemisphereLetter},
         m_TrailingHemisphereIndicator);
    keys({"DegMinSecSymbols", 6, "symbols of degrees and minutes"}, m_DegMinSecSymbols);
    keys(Common({"GridStyle", 7, "style code of the lines"}), m_GridStyle);
    keys(Common({"GridColor", 8, "color"}), PaletteIndex(m_GridColor));
    keys(Common({"GridTrueColor", 8, "color"}), m_GridColor);
}

bool GeoGridInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool GeoGridInfo::Write(Section& section) const {
    GeoGridInfo(*this).ForEachKey(KeyAppender(section));
    return true;
}

RecordFields GeoGridInfo::Fields() const {
    RecordFields fields;
    GeoGridInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
