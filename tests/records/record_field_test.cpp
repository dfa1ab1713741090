// SPDX-License-Identifier: MIT
#include <marlin/records/grid_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/panel_info.h>

#include <gtest/gtest.h>

namespace {

TEST(RecordKey, SaysWhatAValueMeans) {
    const MARLINSUITE::RecordKey style = LineInfo().Fields()[2].Key;
    EXPECT_EQ(style.MeaningOf(LineInfo::DOTTED_LINE), "dotted");
    EXPECT_EQ(style.MeaningOf(9), "dash pattern");
    const MARLINSUITE::RecordKey parts = GridInfo().Fields()[2].Key;
    EXPECT_EQ(parts.MeaningOf(0), "nothing is drawn");
    EXPECT_EQ(parts.MeaningOf(GridInfo::X_TICKS), "x ticks");
    EXPECT_EQ(parts.MeaningOf(GridInfo::POINTS | GridInfo::LONG_NORTHTICK | 256),
              "points, long tick at north");
    EXPECT_EQ(parts.MeaningOf(256), "what is drawn");
}

TEST(RecordKey, HasItsNameOrAnotherOneBehindAPrefix) {
    const MARLINSUITE::RecordFields fields = PanelInfo().Fields();
    EXPECT_EQ(fields[0].Key.NameIn("") + fields[2].Key.NameIn(""), "WidthPosX");
    EXPECT_EQ(fields[0].Key.NameIn("L.") + fields[2].Key.NameIn("L."), "L.WidthL.X");
}

}  // namespace
