// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/color/dxf_color_table.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <support/temporary_file.h>

namespace {

constexpr unsigned long red = 0x0000FFUL;
constexpr unsigned long green = 0x00FF00UL;
constexpr unsigned long blue = 0xFF0000UL;
const DXFColor dxfRed(10);
const DXFColor dxfGreen(90);
const DXFColor dxfBlue(170);

DXFColorTable RedToBlue() {
    DXFColorTable table;
    table.AddEntry(0.0, red);
    table.AddEntry(10.0, red);
    table.AddEntry(20.0, blue);
    table.SetBelowColor(green);
    return table;
}

TEST(DXFColorTable, KeepsTheFirstOfNeighborsOfOneColor) {
    DXFColorTable table = RedToBlue();
    table.Unique();
    ASSERT_EQ(table.NumEntries(), 2);
    EXPECT_EQ(table.EntryValue(0), 0.0);
    EXPECT_EQ(table.EntryColor(0), red);
    EXPECT_EQ(table.EntryDxfColor(0), dxfRed);
    EXPECT_EQ(table.EntryValue(1), 20.0);
    EXPECT_EQ(table.EntryDxfColor(1), dxfBlue);
}

// The default color outside the entries, the last one of equal values.
TEST(DXFColorTable, AnswersWithTheLastEntryAtOrBelowTheValue) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const double below20 = std::nextafter(20.0, 0.0);
    EXPECT_EQ(DXFColorTable()[3.0], DXFColor::_BLACK);
    DXFColorTable none;
    none.SetBelowColor(blue);
    none.Unique();
    EXPECT_EQ(none[3.0], dxfBlue);
    DXFColorTable table = RedToBlue();
    table.AddEntry(30.0, red);
    table.AddEntry(30.0, green);
    table.AddEntry(40.0, blue);
    table.Unique();
    const struct {
        double value;
        DXFColor color;
    } cases[] = {
        {-1.0, dxfGreen}, {nan, dxfGreen}, {-0.0, dxfRed},   {15.0, dxfRed},   {below20, dxfRed},
        {20.0, dxfBlue},  {25.0, dxfBlue}, {30.0, dxfGreen}, {1e300, dxfBlue}, {infinity, dxfBlue},
    };
    for (const auto& [value, color] : cases) {
        EXPECT_EQ(table[value].Index(), color.Index()) << value;
    }
}

TEST(DXFColorTable, FallsBackToTheDefaultColorWhileOutOfStep) {
    DXFColorTable table = RedToBlue();
    EXPECT_EQ(table[15.0], DXFColor::_BLACK);
    table.Unique();
    table.AddEntry(30.0, green);
    EXPECT_EQ(table[35.0], dxfGreen);  // green is below
    EXPECT_EQ(table.EntryDxfColor(2), dxfGreen);
    EXPECT_EQ(table[25.0], dxfBlue);
}

TEST(DXFColorTable, SnapsItsColorsToThePalette) {
    DXFColorTable table;
    table.AddEntry(0.0, static_cast<unsigned long>(RGBColor(255, 2, 1)));
    table.AddEntry(1.0, static_cast<unsigned long>(RGBColor(255, 0, 3)));
    table.AddEntry(2.0, static_cast<unsigned long>(RGBColor(100, 100, 100)));
    table.MakeDXFTable();
    ASSERT_EQ(table.NumEntries(), 2);
    EXPECT_EQ(table.EntryColor(0), red);
    EXPECT_EQ(table.EntryColor(1), 0x545454UL);
    EXPECT_EQ(table.EntryValue(1), 2.0);
    EXPECT_EQ(table.EntryDxfColor(1), DXFColor(250));
}

TEST(DXFColorTable, ComparesEntriesAlone) {
    const DXFColorTable raw = RedToBlue();
    DXFColorTable table = raw;
    table.Unique();
    EXPECT_FALSE(table == raw);
    DXFColorTable sameEntries;
    sameEntries.AddEntry(0.0, red);
    sameEntries.AddEntry(20.0, blue);
    EXPECT_TRUE(table == sameEntries);
    sameEntries.AddEntry(std::nextafter(20.0, 21.0), blue);
    table.AddEntry(20.0, blue);
    EXPECT_FALSE(table == sameEntries);
}

TEST(DXFColorTable, GoesThroughAFile) {
    const TemporaryFile file;
    const DXFColorTable saved = RedToBlue();
    ASSERT_TRUE(saved.FileSave(file.Path()));
    DXFColorTable loaded;
    loaded.AddEntry(99.0, green);
    ASSERT_TRUE(loaded.FileOpen(file.Path()));
    EXPECT_TRUE(loaded == saved);
    EXPECT_EQ(loaded.BelowColor(), green);
    loaded.Unique();
    EXPECT_EQ(loaded[15.0], dxfRed);
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
