// SPDX-License-Identifier: MIT
#include <marlin/contours/contour_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(ContourInfo, WritesItsDefaults) {
    Section section("Contours");
    EXPECT_TRUE(ContourInfo().Write(section));
    EXPECT_EQ(KeysOf(section),
              "SmoothingWindow=0;Values between 0 and 8\nContourLabelSpacing=20.000000\n"
              "SuppressionLength=0.000000;A value of 0 disables suppresion\nSmoothingPasses=1\n"
              "EnableContouring=1\nLabelOrientation=OptimumTextAngle\n");
}

TEST(ContourInfo, ReadsBackWhatItWrote) {
    ContourInfo info;
    info.SetEnableContouring(false);
    info.SetLabelSpacing(12.5F);
    info.SetSuppressionLength(-3.25);
    info.SetSmoothingWindow(99);
    info.SetSmoothingPasses(-4);
    info.SetLabelOrientation(ContourInfo::LowToHigh);
    Section section("Contours");
    info.Write(section);
    info.Write(section);
    EXPECT_EQ(section.NumKeys(), 6);
    ContourInfo read;
    EXPECT_TRUE(read.Read(section));
    EXPECT_EQ(read, info);
}

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
    info.SetLabelOrientation(ContourInfo::HighToLow);
    info.Read(Section("Contours"));
    EXPECT_EQ(info, ContourInfo());
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
    void (*const changes[])(ContourInfo&) = {
        [](ContourInfo& i) { i.SetEnableContouring(false); },
        [](ContourInfo& i) { i.SetLabelSpacing(20.001F); },
        [](ContourInfo& i) { i.SetSmoothingWindow(1); },
        [](ContourInfo& i) { i.SetSmoothingPasses(2); },
        [](ContourInfo& i) { i.SetLabelOrientation(ContourInfo::LowToHigh); },
    };
    for (const auto change : changes) {
        ContourInfo changed;
        change(changed);
        EXPECT_FALSE(changed == ContourInfo());
    }
}

}  // namespace
