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

TEST(PanelInfo, WritesInThePlaceOfItsKeys) {
    Section section("Panel");
    EXPECT_TRUE(PanelInfo().Write(section));
    section += "Other";
    EXPECT_TRUE(Panel().Write(section));
    EXPECT_EQ(KeysOf(section),
              "Width=80.000000\nHeight=40.500000\nPosX=12.500000\nPosY=-0.250000\n"
              "LockPosSize=1\nJustification=7\nOther=\n");
}

TEST(PanelInfo, BehindAPrefixPositionsHaveShorterNames) {
    Section section("Panel");
    EXPECT_TRUE(Panel().Write("Legend", section));
    EXPECT_EQ(KeysOf(section),
              "Legend.Width=80.000000\nLegend.Height=40.500000\nLegend.X=12.500000\n"
              "Legend.Y=-0.250000\nLegend.LockPosSize=1\nLegend.Justification=7\n");
    PanelInfo panel;
    EXPECT_TRUE(panel.Read("LEGEND", section));
    EXPECT_EQ(panel, Panel());
    EXPECT_TRUE(panel.Read("Title", section));
    EXPECT_EQ(panel.Width, 80.0F);
    EXPECT_EQ(panel.Justification, 0);
}

TEST(PanelInfo, ReadsBackWhatItWrote) {
    Section section("Panel");
    Panel().Write(section);
    PanelInfo panel;
    EXPECT_TRUE(panel.Read(section));
    EXPECT_EQ(panel, Panel());
}

TEST(PanelInfo, WithoutKeysKeepsAllButTheJustification) {
    PanelInfo expected = Panel();
    expected.Justification = 0;
    for (const char* const value : {"", "left", "-"}) {
        Section section("Panel");
        for (const char* const name : {"Width", "PosX", "PosY", "LockPosSize", "Justification"}) {
            section[name] << value;
        }
        PanelInfo panel = Panel();
        EXPECT_TRUE(panel.Read(section));
        EXPECT_EQ(panel, expected) << value;
    }
}

TEST(PanelInfo, PositionsPassThroughSinglePrecision) {
    Section section("Panel");
    section["PosX"] << 16777217.0;  // 2^24 + 1 lies between two floats; the even one is 2^24
    section["PosY"] << "1e39";      // beyond the largest float
    PanelInfo panel = Panel();
    panel.Read(section);
    EXPECT_EQ(panel.PosX, 16777216.0);
    EXPECT_EQ(panel.PosY, -0.25);
    section["PosX"] << 0.1;
    panel.Read(section);
    EXPECT_EQ(panel.PosX, static_cast<double>(0.1F));
}

TEST(PanelInfo, IsEqualWithinTheToleranceOfPositionAndSizeOnly) {
    PanelInfo near = Panel();
    near.PosX += 1e-10;
    near.PosY -= 1e-10;
    EXPECT_EQ(near, Panel());
    void (*const changes[])(PanelInfo&) = {
        [](PanelInfo& panel) { panel.PosX += 1e-6; },
        [](PanelInfo& panel) { panel.PosY += 1e-6; },
        [](PanelInfo& panel) { panel.Width += 0.001F; },
        [](PanelInfo& panel) { panel.Height += 0.001F; },
        [](PanelInfo& panel) { panel.LockPosSize = false; },
        [](PanelInfo& panel) { panel.Justification = 6; },
    };
    for (const auto change : changes) {
        PanelInfo panel = Panel();
        change(panel);
        EXPECT_FALSE(panel == Panel()) << &change - changes;
    }
}

}  // namespace
