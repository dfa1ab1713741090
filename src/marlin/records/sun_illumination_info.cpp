// SPDX-License-Identifier: MIT
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/sun_illumination_info.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

// Not in the header, so that the library alone has the table of virtual functions.
SunIlluminationInfo::~SunIlluminationInfo() = default;

// The spelling is that of the files in use.
template <class Keys>
void SunIlluminationInfo::ForEachKey(const Keys& keys) {
    keys({"SunIllumunationEnable", 1, "the surface is shaded"}, Enable);
    keys({"SunIllumunationAzimuth", 2, "direction of the light", RecordKey::Degrees}, Azimuth);
    keys({"SunIllumunationElevation", 3, "its height", RecordKey::Degrees}, Elevation);
    keys({"SunIllumunationContrast", 4, "contrast, a factor"}, Contrast);
}

bool SunIlluminationInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool SunIlluminationInfo::Read(const std::string& prefix, const Section& section) {
    ForEachKey(KeyReader(section, prefix + "."));
    return true;
}

bool SunIlluminationInfo::Write(Section& section) const {
    SunIlluminationInfo(*this).ForEachKey(KeyReplacer(section));
    return true;
}

bool SunIlluminationInfo::Write(const std::string& prefix, Section& section) const {
    SunIlluminationInfo(*this).ForEachKey(KeyReplacer(section, prefix + "."));
    return true;
}

RecordFields SunIlluminationInfo::Fields() const {
    RecordFields fields;
    SunIlluminationInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
