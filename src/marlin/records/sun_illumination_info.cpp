// SPDX-License-Identifier: MIT
#include <marlin/records/sun_illumination_info.h>
#include <marlin/settings/section.h>

namespace {

// The spelling is that of the files in use.
const char* const enableKey = "SunIllumunationEnable";
const char* const azimuthKey = "SunIllumunationAzimuth";
const char* const elevationKey = "SunIllumunationElevation";
const char* const contrastKey = "SunIllumunationContrast";

}  // namespace

SunIlluminationInfo::~SunIlluminationInfo() = default;

bool SunIlluminationInfo::Read(const Section& section) {
    ReadKeys("", section);
    return true;
}

bool SunIlluminationInfo::Read(const std::string& prefix, const Section& section) {
    ReadKeys(prefix + ".", section);
    return true;
}

bool SunIlluminationInfo::Write(Section& section) const {
    WriteKeys("", section);
    return true;
}

bool SunIlluminationInfo::Write(const std::string& prefix, Section& section) const {
    WriteKeys(prefix + ".", section);
    return true;
}

void SunIlluminationInfo::ReadKeys(const std::string& start, const Section& section) {
    section[start + enableKey] >> Enable;
    section[start + azimuthKey] >> Azimuth;
    section[start + elevationKey] >> Elevation;
    section[start + contrastKey] >> Contrast;
}

void SunIlluminationInfo::WriteKeys(const std::string& start, Section& section) const {
    section[start + enableKey] << Enable;
    section[start + azimuthKey] << Azimuth;
    section[start + elevationKey] << Elevation;
    section[start + contrastKey] << Contrast;
}
