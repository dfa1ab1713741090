// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The light source of a shaded surface. By default off, at azimuth 290, elevation 30, contrast 1.
/// A record writes one key a field, which replaces a key of that name; with a prefix the keys are
/// prefix + "." + name. Equality is exact.
///
/// @code
/// SunIlluminationInfo sun;
/// sun.Azimuth = 315.0;
/// Section section("Surface");
/// sun.Write(section);
/// SunIlluminationInfo read;
/// read.Read(section);
/// assert(read == sun);
/// @endcode
class MARLIN_API SunIlluminationInfo {
public:
    bool Enable = false;      ///< Whether the surface is shaded.
    double Azimuth = 290.0;   ///< Direction of the light source in degrees, not reduced.
    double Elevation = 30.0;  ///< Its height above the horizon in degrees, not limited.
    double Contrast = 1.0;    ///< A factor, 1 for the plain shading.

    SunIlluminationInfo() = default;
    SunIlluminationInfo(const SunIlluminationInfo&) = default;
    SunIlluminationInfo(SunIlluminationInfo&&) = default;
    SunIlluminationInfo& operator=(const SunIlluminationInfo&) = default;
    SunIlluminationInfo& operator=(SunIlluminationInfo&&) = default;
    virtual ~SunIlluminationInfo();

    /// Exact, in all fields.
    bool operator==(const SunIlluminationInfo& other) const noexcept = default;

    /// Returns true. A key that is missing or unreadable leaves its field as it was.
    bool Read(const Section& section);
    /// The same with keys that begin with the prefix and a ".".
    bool Read(const std::string& prefix, const Section& section);
    /// Sets each key in its place, or appends it; returns true.
    bool Write(Section& section) const;
    /// The same with keys that begin with the prefix and a ".".
    bool Write(const std::string& prefix, Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);
};
