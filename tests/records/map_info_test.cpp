// SPDX-License-Identifier: MIT
#include <marlin/records/map_info.h>
#include <marlin/settings/section.h>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

TEST(CMapInfo, WritesItsDefaults) {
    Section section("Map");
    EXPECT_TRUE(CMapInfo().Write(section));
    EXPECT_EQ(KeysOf(section),
              "SymbolizationType=0\nScaleLevel=0\nDisplayType=2\nShowTextGeneric=1\n"
              "ShowTextOther=0\nShowChartContour=1\nShowLightsInfo=0\nAntiCluttering=1\n"
              "ShowBoundaries=1\n");
}

// One change after the other, so that a field stored under another's key shows.
TEST(CMapInfo, ReadsBackEveryField) {
    void (*const changes[])(CMapInfo&) = {
        [](CMapInfo& map) { map.SetSymbolizationType(-5); },
        [](CMapInfo& map) { map.SetScaleLevel(6); },
        [](CMapInfo& map) { map.SetDisplayType(7); },
        [](CMapInfo& map) { map.SetTextGeneric(false); },
        [](CMapInfo& map) { map.SetTextOther(true); },
        [](CMapInfo& map) { map.SetChartContour(false); },
        [](CMapInfo& map) { map.SetLightsInfo(true); },
        [](CMapInfo& map) { map.SetAntiCluttering(false); },
        [](CMapInfo& map) { map.SetBoundaries(false); },
    };
    CMapInfo map;
    CMapInfo before;
    for (const auto change : changes) {
        change(map);
        EXPECT_FALSE(map == before);
        Section section("Map");
        map.Write(section);
        CMapInfo read;
        EXPECT_TRUE(read.Read(section));
        EXPECT_EQ(read, map) << KeysOf(section);
        before = map;
    }
}

TEST(CMapInfo, KeepsFieldsOfMissingAndUnreadableKeys) {
    Section section("Map");
    section["ScaleLevel"] << "large";
    section["ShowBoundaries"] << "true";
    section["DisplayType"] << 4;
    CMapInfo map;
    map.SetScaleLevel(3);
    CMapInfo expected = map;
    expected.SetDisplayType(4);
    EXPECT_TRUE(map.Read(section));
    EXPECT_EQ(map, expected);
}

}  // namespace
