// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The light source of a shaded surface. By default off, at azimuth 290, elevation 30, contrast
/// 1. It writes one key a field, in the place of a key of that name; with a prefix the keys are
/// prefix + "." + name. Equality is exact.
class MARLIN_API SunIlluminationInfo {
public:
    bool Enable = false;
    double Azimuth = 290.0;   ///< Direction of the light source in degrees.
    double Elevation = 30.0;  ///< Its height above the horizon in degrees.
    double Contrast = 1.0;    ///< A factor.

    SunIlluminationInfo() = default;
    SunIlluminationInfo(const SunIlluminationInfo&) = default;
    SunIlluminationInfo& operator=(const SunIlluminationInfo&) = default;
    virtual ~SunIlluminationInfo();

    bool operator==(const SunIlluminationInfo& other) const noexcept = default;

    /// Keys that are missing or unreadable keep their fields; true.
    bool Read(const Section& section);
    bool Read(const std::string& prefix, const Section& section);
    /// True.
    bool Write(Section& section) const;
    bool Write(const std::string& prefix, Section& section) const;
    /// The keys in the order of `Write` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);
};
