// SPDX-License-Identifier: MIT
#include <marlin/records/map_info.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(CMapInfo, WritesItsDefaults) {
    EXPECT_EQ(WrittenKeys(CMapInfo()),
              "SymbolizationType=0\nScaleLevel=0\nDisplayType=2\nShowTextGeneric=1\n"
              "ShowTextOther=0\nShowChartContour=1\nShowLightsInfo=0\nAntiCluttering=1\n"
              "ShowBoundaries=1\n");
}

TEST(CMapInfo, ReadsBackEveryField) {
    ExpectEachChangeKept<CMapInfo>({
        [](CMapInfo& map) { map.SetSymbolizationType(-5); },
        [](CMapInfo& map) { map.SetScaleLevel(6); },
        [](CMapInfo& map) { map.SetDisplayType(7); },
        [](CMapInfo& map) { map.SetTextGeneric(false); },
        [](CMapInfo& map) { map.SetTextOther(true); },
        [](CMapInfo& map) { map.SetChartContour(false); },
        [](CMapInfo& map) { map.SetLightsInfo(true); },
        [](CMapInfo& map) { map.SetAntiCluttering(false); },
        [](CMapInfo& map) { map.SetBoundaries(false); },
    });
}

TEST(CMapInfo, KeepsFieldsOfMissingAndUnreadableKeys) {
    CMapInfo map;
    map.SetScaleLevel(3);
    EXPECT_EQ(ReadFrom(map, "ScaleLevel", "large"), map);
    map.SetBoundaries(false);
    EXPECT_EQ(ReadFrom(map, "ShowBoundaries", "true"), map);
}

}  // namespace
