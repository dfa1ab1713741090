// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/color/dxf_color_table.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr unsigned long red = 0x0000FFUL;    // 10 in the palette
constexpr unsigned long green = 0x00FF00UL;  // 90
constexpr unsigned long blue = 0xFF0000UL;   // 170

DXFColorTable RedToBlue() {
    DXFColorTable table;
    table.AddEntry(0.0, red);
    table.AddEntry(10.0, red);
    table.AddEntry(20.0, blue);
    table.SetBelowColor(green);
    return table;
}

// Each entry as value, color word and DXF color.
std::string TextOf(const DXFColorTable& table) {
    std::string text;
    for (int i = 0; i < table.NumEntries(); ++i) {
        char entry[60];
        std::snprintf(entry, sizeof entry, "%g %06lx %d; ", table.EntryValue(i),
                      table.EntryColor(i), table.EntryDxfColor(i).Index());
        text += entry;
    }
    return text;
}

// The default color outside the entries, the last one of equal values.
TEST(DXFColorTable, AnswersWithTheLastEntryAtOrBelowTheValue) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(DXFColorTable()[3.0], DXFColor::_BLACK);
    DXFColorTable none;
    none.SetBelowColor(blue);
    none.Unique();
    EXPECT_EQ(none[3.0], 170);
    DXFColorTable table = RedToBlue();
    table.AddEntry(30.0, red);
    table.AddEntry(30.0, green);
    table.AddEntry(40.0, blue);
    table.Unique();
    const std::pair<double, int> cases[] = {
        {-1.0, 90},  {std::nan(""), 90}, {-0.0, 10}, {15.0, 10},   {std::nextafter(20.0, 0.0), 10},
        {20.0, 170}, {25.0, 170},        {30.0, 90}, {1e300, 170}, {infinity, 170}};
    for (const auto& [value, color] : cases) {
        EXPECT_EQ(table[value].Index(), color) << value;
    }
}

TEST(DXFColorTable, IsOutOfStepUntilItKeepsTheFirstOfNeighborsOfOneColor) {
    DXFColorTable table = RedToBlue();
    EXPECT_EQ(TextOf(table), "0 0000ff 0; 10 0000ff 0; 20 ff0000 0; ");
    EXPECT_EQ(table[15.0], DXFColor::_BLACK);
    table.Unique();
    EXPECT_EQ(TextOf(table), "0 0000ff 10; 20 ff0000 170; ");
    table.AddEntry(30.0, red);
    EXPECT_EQ(TextOf(table), "0 0000ff 10; 20 ff0000 170; 30 0000ff 90; ") << "green is below";
    EXPECT_EQ(table[35.0], 90);
}

TEST(DXFColorTable, SnapsItsColorsToThePalette) {
    DXFColorTable table;
    table.AddEntry(0.0, RGBColor(255, 2, 1));
    table.AddEntry(1.0, RGBColor(255, 0, 3));
    table.AddEntry(2.0, RGBColor(100, 100, 100));
    table.MakeDXFTable();
    EXPECT_EQ(TextOf(table), "0 0000ff 10; 2 545454 250; ");
}

TEST(DXFColorTable, GoesThroughAFileAndIsComparedByItsEntriesAlone) {
    const TemporaryFolder folder;
    const CString path = folder.File("a.col").c_str();
    const DXFColorTable saved = RedToBlue();
    ASSERT_TRUE(saved.FileSave(path));
    DXFColorTable loaded;
    loaded.AddEntry(99.0, green);
    EXPECT_FALSE(loaded == saved);
    ASSERT_TRUE(loaded.FileOpen(path));
    EXPECT_TRUE(loaded == saved);
    EXPECT_EQ(loaded.BelowColor(), green);
    loaded.SetBelowColor(red);
    EXPECT_TRUE(loaded == saved);
    loaded.Unique();
    EXPECT_FALSE(loaded == saved);
    for (const auto& [value, color] : {std::pair(0.0, blue), std::pair(1.0, red)}) {
        DXFColorTable one;
        DXFColorTable other;
        one.AddEntry(0.0, red);
        other.AddEntry(value, color);
        EXPECT_FALSE(one == other) << value;
    }
    EXPECT_FALSE(loaded.FileSave("/nowhere/at/all.col"));
    EXPECT_FALSE(loaded.FileOpen("/nowhere/at/all.col"));
    EXPECT_EQ(loaded.NumEntries(), 0);
}

// A table as a derived class may leave it.
struct EndlessTable : DXFColorTable {
    EndlessTable() {
        m_Values.push_back(std::numeric_limits<double>::infinity());
        m_Colors.push_back(0);
    }
};

TEST(DXFColorTable, AValueThatIsNotFiniteIsNotSavedAndTheOldFileStays) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.col", "old");
    EXPECT_FALSE(EndlessTable().FileSave(path.c_str()));
    EXPECT_EQ(ErrorString::LastError().Cause(), path + ": a value is not finite");
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
}

}  // namespace
