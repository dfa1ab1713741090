// SPDX-License-Identifier: MIT
#include <marlin/records/panel_info.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(PanelInfo, PositionsPassThroughSinglePrecision) {
    // 2^24 + 1 lies between two floats; the even one is 2^24.
    EXPECT_EQ(ReadFrom(PanelInfo(), "PosX", "16777217").PosX, 16777216.0);
    // Beyond the largest float.
    PanelInfo panel;
    panel.PosY = -0.25;
    EXPECT_EQ(ReadFrom(panel, "PosY", "1e39").PosY, -0.25);
}

TEST(PanelInfo, ComparesPositionAndSizeWithATolerance) {
    PanelInfo near;
    near.PosX += 1e-10;
    near.PosY -= 1e-10;
    near.Width += 1e-10F;
    near.Height -= 1e-10F;
    EXPECT_EQ(near, PanelInfo());
}

}  // namespace
