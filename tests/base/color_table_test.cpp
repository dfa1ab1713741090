// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/colors/color_table.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Entries = std::vector<std::pair<double, unsigned long>>;

Entries EntriesOf(const ColorTable& table) {
    Entries entries;
    for (int i = 0; i < table.NumEntries(); ++i) {
        entries.emplace_back(table.EntryValue(i), table.EntryColor(i));
    }
    return entries;
}

// Reads the file that holds these lines.
bool ReadLines(ColorTable& table, const std::string& lines) {
    const TemporaryFolder folder;
    FileObject file;
    EXPECT_TRUE(file.FileOpen(folder.Write("t.col", lines).c_str(), 0x20));
    return table.FileOpen(file);
}

TEST(ColorTable, EntriesAscendAndEqualValuesKeepTheirOrder) {
    ColorTable table;
    EXPECT_TRUE(table.AddEntry(2.0, 1));
    EXPECT_TRUE(table.AddEntry(-1.0, 2));
    EXPECT_TRUE(table.AddEntry(2.0, 3));
    EXPECT_FALSE(table.AddEntry(std::numeric_limits<double>::quiet_NaN(), 4));
    EXPECT_FALSE(table.AddEntry(std::numeric_limits<double>::infinity(), 4));
    EXPECT_EQ(EntriesOf(table), (Entries{{-1.0, 2}, {2.0, 1}, {2.0, 3}}));
}

TEST(ColorTable, AFileIsReadUpToTheFirstMissingNumberAndSorted) {
    ColorTable table;
    table.AddEntry(99.0, 99);
    EXPECT_TRUE(ReadLines(table,
                          "[colortable]\nEntry(2) = 5,0,0,3\nBelow = 4294967295\n"
                          "entry(0) = 5, 0 ,0,1\nEntry(1)=-2.5,255,128,0 ; note\nEntry(4)=x\n"));
    EXPECT_EQ(EntriesOf(table), (Entries{{-2.5, 0x0080FF}, {5.0, 0x010000}, {5.0, 0x030000}}));
    EXPECT_EQ(table.BelowColor(), 0xFFFFFFFFUL);
}

TEST(ColorTable, AMissingColorBelowIsThatOfTheLowestEntry) {
    ColorTable table;
    EXPECT_TRUE(ReadLines(table, "[ColorTable]\nEntry(0) = 1,9,0,0\nEntry(1) = 0,7,0,0\n"));
    EXPECT_EQ(table.BelowColor(), 7UL);
    EXPECT_TRUE(ReadLines(table, "[ColorTable]\n"));
    EXPECT_EQ(table.NumEntries(), 0);
    EXPECT_EQ(table.BelowColor(), 0UL);
}

TEST(ColorTable, AFileThatDoesNotConvertLeavesTheTableEmpty) {
    for (const char* lines :
         {"", "[Other]\nEntry(0) = 1,2,3,4\n", "[ColorTable]\nEntry(0) = 1,2,3\n",
          "[ColorTable]\nEntry(0) = 1,2,3,4,5\n", "[ColorTable]\nEntry(0) = 1,2,3,256\n",
          "[ColorTable]\nEntry(0) = 1,-1,3,4\n", "[ColorTable]\nEntry(0) = 1m,2,3,4\n",
          "[ColorTable]\nEntry(0) = nan,2,3,4\n", "[ColorTable]\nEntry(0) = 1,2.5,3,4\n",
          "[ColorTable]\nEntry(0) = 1,2,3,4\nEntry(1) =\n",
          "[ColorTable]\nBelow = blue\nEntry(0) = 1,2,3,4\n"}) {
        ColorTable table;
        table.AddEntry(1.0, 1);
        table.SetBelowColor(5);
        EXPECT_FALSE(ReadLines(table, lines)) << lines;
        EXPECT_EQ(table.NumEntries(), 0) << lines;
        EXPECT_EQ(table.BelowColor(), 0UL) << lines;
    }
}

TEST(ColorTable, AFileIsWrittenByteForByteAndReadsBackExactly) {
    const TemporaryFolder folder;
    ColorTable table;
    table.SetBelowColor(0xFF000000UL);
    table.AddEntry(-7000.0, 0x00FFF000UL);
    table.AddEntry(0.1, 0x00010203UL);
    FileObject file;
    file.SetEntry("ColorTable", "Entry(2)", "9,9,9,9", FileObject::APPEND);
    ASSERT_TRUE(table.FileSave(file));
    ASSERT_TRUE(file.FileSave(folder.File("t.col").c_str(), 0x1011));
    const std::string text = TemporaryFolder::Read(folder.File("t.col"));
    EXPECT_EQ(text,
              "[ColorTable]\r\nBelow    = 4278190080\r\nEntry(0) = -7000,0,240,255\r\n"
              "Entry(1) = 0.1,3,2,1\r\n\r\n");
    ColorTable again;
    EXPECT_TRUE(ReadLines(again, text));
    EXPECT_EQ(EntriesOf(again), EntriesOf(table));
    EXPECT_EQ(again.BelowColor(), table.BelowColor());
}

TEST(ColorTable, EveryFiniteValueSurvivesASave) {
    ColorTable table;
    for (const double value : {-1.7976931348623157e308, -1.0 / 3.0, 5e-324, 0.30000000000000004,
                               123456789.123456789, 1e22}) {
        table.AddEntry(value, 0);
    }
    FileObject file;
    ASSERT_TRUE(table.FileSave(file));
    ColorTable again;
    ASSERT_TRUE(again.FileOpen(file));
    EXPECT_EQ(EntriesOf(again), EntriesOf(table));
}

// A table as a derived class may leave it.
struct BrokenTable : ColorTable {
    BrokenTable() {
        m_Values.push_back(std::numeric_limits<double>::infinity());
        m_Colors.push_back(0);
    }
};

TEST(ColorTable, AValueThatIsNotFiniteIsNotSaved) {
    FileObject file;
    file.SetEntry("ColorTable", "Below", "7", FileObject::APPEND);
    EXPECT_FALSE(BrokenTable().FileSave(file));
    CString below;
    EXPECT_TRUE(file.GetEntry("ColorTable", "Below", below));
    EXPECT_STREQ(below, "7");
}

}  // namespace
