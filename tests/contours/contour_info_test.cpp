// SPDX-License-Identifier: MIT
#include <marlin/contours/contour_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>

namespace {

TEST(ContourInfo, PrefersTheNewerKeyOfTheSpacing) {
    Section section("Contours");
    section["LabelSpacing"] << 12;
    ContourInfo info;
    info.Read(section);
    EXPECT_EQ(info.GetLabelSpacing(), 12.0F);
    section["ContourLabelSpacing"] << 15;
    info.Read(section);
    EXPECT_EQ(info.GetLabelSpacing(), 15.0F);
    section["ContourLabelSpacing"] << "far";
    info.Read(section);
    EXPECT_EQ(info.GetLabelSpacing(), 12.0F);
}

TEST(ContourInfo, ReadsEveryOrientationAndWritesAnUnknownOneEmpty) {
    const struct {
        const char* text;
        ContourInfo::label_orientation orientation;
    } cases[] = {{"OptimumTextAngle", ContourInfo::OptimumTextAngle},
                 {"LowToHigh", ContourInfo::LowToHigh},
                 {"HighToLow", ContourInfo::HighToLow},
                 {"lowtohigh", ContourInfo::OptimumTextAngle},
                 {"LowToHigh ", ContourInfo::OptimumTextAngle},
                 {"", ContourInfo::OptimumTextAngle}};
    for (const auto& [text, orientation] : cases) {
        Section section("Contours");
        section["LabelOrientation"] << text;
        ContourInfo info;
        info.SetLabelOrientation(ContourInfo::HighToLow);
        info.Read(section);
        EXPECT_EQ(info.GetLabelOrientation(), orientation) << text;
    }
    ContourInfo info;
    for (const int orientation : {-1, 3}) {
        info.SetLabelOrientation(static_cast<ContourInfo::label_orientation>(orientation));
        Section section("Contours");
        info.Write(section);
        EXPECT_EQ(section["LabelOrientation"].GetValue(), "") << orientation;
    }
}

TEST(ContourInfo, ComparesLengthsWithATolerance) {
    ContourInfo info;
    info.SetSuppressionLength(1e-10);
    EXPECT_TRUE(info == ContourInfo());
    info.SetSuppressionLength(1e-8);
    EXPECT_FALSE(info == ContourInfo());
}

}  // namespace
