// SPDX-License-Identifier: MIT
#include <marlin/records/panel_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

PanelInfo Panel() {
    PanelInfo panel;
    panel.PosX = 12.5;
    panel.PosY = -0.25;
    panel.Width = 80.0F;
    panel.Height = 40.5F;
    panel.LockPosSize = true;
    panel.Justification = 7;
    return panel;
}

TEST(PanelInfo, BehindAPrefixPositionsHaveShorterNames) {
    Section section("Panel");
    EXPECT_TRUE(Panel().Write("Legend", section));
    EXPECT_EQ(KeysOf(section),
              "Legend.Width=80.000000\nLegend.Height=40.500000\nLegend.X=12.500000\n"
              "Legend.Y=-0.250000\nLegend.LockPosSize=1\nLegend.Justification=7\n");
    EXPECT_EQ(WrittenKeys(Panel()),
              "Width=80.000000\nHeight=40.500000\nPosX=12.500000\nPosY=-0.250000\n"
              "LockPosSize=1\nJustification=7\n");
    PanelInfo panel;
    EXPECT_TRUE(panel.Read("LEGEND", section));
    EXPECT_EQ(panel, Panel());
}

TEST(PanelInfo, WithoutKeysKeepsAllButTheJustification) {
    PanelInfo expected = Panel();
    expected.Justification = 0;
    for (const char* const name :
         {"Width", "Height", "PosX", "PosY", "LockPosSize", "Justification", "Other"}) {
        EXPECT_EQ(ReadFrom(Panel(), name, "left"), expected) << name;
    }
}

TEST(PanelInfo, PositionsPassThroughSinglePrecision) {
    // 2^24 + 1 lies between two floats; the even one is 2^24.
    EXPECT_EQ(ReadFrom(Panel(), "PosX", "16777217").PosX, 16777216.0);
    // Beyond the largest float.
    EXPECT_EQ(ReadFrom(Panel(), "PosY", "1e39").PosY, -0.25);
}

TEST(PanelInfo, WritesInThePlaceOfItsKeysAndComparesWithinATolerance) {
    ExpectEachChangeKept<PanelInfo>({
                                        [](PanelInfo& panel) { panel.PosX = 0.5; },
                                        [](PanelInfo& panel) { panel.PosY = -0.5; },
                                        [](PanelInfo& panel) { panel.Width = 0.001F; },
                                        [](PanelInfo& panel) { panel.Height = 0.001F; },
                                        [](PanelInfo& panel) { panel.LockPosSize = true; },
                                        [](PanelInfo& panel) { panel.Justification = 6; },
                                    },
                                    true);
    PanelInfo near;
    near.PosX += 1e-10;
    near.PosY -= 1e-10;
    EXPECT_EQ(near, PanelInfo());
}

}  // namespace
