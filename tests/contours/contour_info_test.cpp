// SPDX-License-Identifier: MIT
#include "support/section_keys.h"
#include <marlin/contours/contour_info.h>
#include <marlin/contours/record_kinds.h>

#include <utility>

namespace {

TEST(ContourInfo, WritesItsDefaults) {
    EXPECT_EQ(WrittenKeys(ContourInfo()),
              "SmoothingWindow=0;Values between 0 and 8\nContourLabelSpacing=20.000000\n"
              "SuppressionLength=0.000000;A value of 0 disables suppresion\nSmoothingPasses=1\n"
              "EnableContouring=1\nLabelOrientation=OptimumTextAngle\n");
    std::string fields;  // the two keys of the spacing are one
    for (const MARLINSUITE::RecordField& field : ContourInfo().Fields()) {
        fields += std::to_string(field.Key.Field) + (field.Key.IsCommon ? "c " : " ");
    }
    EXPECT_EQ(fields, "4 2c 2 3 5 1 6 ");
}

TEST(ContourInfo, PrefersTheNewerKeyOfTheSpacing) {
    Section section("Contours");
    section["LabelSpacing"] << 12;
    ContourInfo info;
    for (const auto& [newer, spacing] :
         {std::pair("", 12.0F), std::pair("15", 15.0F), std::pair("far", 12.0F)}) {
        section["ContourLabelSpacing"] << newer;
        EXPECT_TRUE(info.Read(section));
        EXPECT_EQ(info.GetLabelSpacing(), spacing);
    }
}

TEST(ContourInfo, ReadsEveryOrientationAndWritesAnUnknownOneEmpty) {
    ContourInfo before;
    before.SetLabelOrientation(ContourInfo::HighToLow);
    for (const auto& [text, orientation] :
         {std::pair("OptimumTextAngle", 0), std::pair("LowToHigh", 1), std::pair("HighToLow", 2),
          std::pair("lowtohigh", 0), std::pair("LowToHigh ", 0), std::pair("", 0)}) {
        EXPECT_EQ(ReadFrom(before, "LabelOrientation", text).GetLabelOrientation(), orientation);
    }
    for (const int orientation : {-1, 3}) {
        before.SetLabelOrientation(static_cast<ContourInfo::label_orientation>(orientation));
        EXPECT_TRUE(WrittenKeys(before).ends_with("LabelOrientation=\n")) << orientation;
    }
}

TEST(ContourInfo, ComparesLengthsWithATolerance) {
    ContourInfo info;
    info.SetSuppressionLength(1e-10);
    EXPECT_TRUE(info == ContourInfo());
    info.SetSuppressionLength(1e-8);
    EXPECT_FALSE(info == ContourInfo());
}

// What differs from the defaults, with the number of its field. A grid has no style but by a key.
TEST(RecordKinds, ReadTheKeysOfASectionWithAndWithoutAPrefix) {
    Section section("S");
    section["Level"] << -12.5;
    section["LabelSpacing"] << 7;
    section["BiasMode"] << 1;
    section["North.BiasMode"] << 2;
    std::string read;
    for (const MARLINSUITE::RecordKind& kind : MARLINSUITE::RecordKinds()) {
        const MARLINSUITE::RecordFields defaults = kind.Defaults();
        EXPECT_FALSE(defaults.empty()) << kind.Name;
        for (const std::string prefix : {"", "North"}) {
            const MARLINSUITE::RecordFields fields = kind.Read(section, prefix);
            for (std::size_t i = 0; i < fields.size(); ++i) {
                if (fields[i].Text != defaults[i].Text && (prefix.empty() || kind.TakesPrefix)) {
                    read += kind.Name + (" " + prefix) + fields[i].Key.Name + "(" +
                            std::to_string(fields[i].Key.Field) + ")=" + fields[i].Text + "\n";
                }
            }
        }
    }
    EXPECT_EQ(read,
              "bias BiasMode(1)=1\nbias NorthBiasMode(1)=2\ngrid GridStyle(3)=\n"
              "contour settings LabelSpacing(2)=7.000000\n"
              "contour settings ContourLabelSpacing(2)=7.000000\n"
              "contour definition Level(1)=-12.500000\n");
}

}  // namespace
