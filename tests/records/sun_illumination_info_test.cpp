// SPDX-License-Identifier: MIT
#include <marlin/records/sun_illumination_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(SunIlluminationInfo, WritesInThePlaceOfItsKeysOrUnderPrefixedOnes) {
    SunIlluminationInfo sun;
    Section section("Sun");
    EXPECT_TRUE(sun.Write(section));
    sun.Enable = true;
    sun.Azimuth = 0.1234567;
    EXPECT_TRUE(sun.Write(section));
    EXPECT_EQ(KeysOf(section),
              "SunIllumunationEnable=1\nSunIllumunationAzimuth=0.123457\n"
              "SunIllumunationElevation=30.000000\nSunIllumunationContrast=1.000000\n");
    sun.Azimuth = 45.0;
    sun.Elevation = -12.5;
    sun.Contrast = 2.25;
    EXPECT_TRUE(sun.Write("Left", section));
    EXPECT_TRUE(section.HasKey("Left.SunIllumunationContrast"));
    SunIlluminationInfo read;
    EXPECT_TRUE(read.Read("Left", section));
    EXPECT_EQ(read, sun);
}

TEST(SunIlluminationInfo, KeepsFieldsOfUnreadableKeys) {
    Section section("Sun");
    section["SunIllumunationAzimuth"] << "abc";
    section["SunIllumunationEnable"] << 2;
    section["SunIllumunationElevation"] << "4e1 degrees";
    SunIlluminationInfo sun;
    EXPECT_TRUE(sun.Read(section));
    SunIlluminationInfo expected;
    expected.Elevation = 40.0;
    EXPECT_EQ(sun, expected);
}

}  // namespace
