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

// The color below stands first, at 99.
Entries EntriesOf(const ColorTable& table) {
    Entries entries = {{99.0, table.BelowColor()}};
    for (int i = 0; i < table.NumEntries(); ++i) {
        entries.emplace_back(table.EntryValue(i), table.EntryColor(i));
    }
    return entries;
}

// Reads the file that holds these lines, over what the table held.
bool ReadLines(ColorTable& table, const std::string& lines) {
    const TemporaryFolder folder;
    FileObject file;
    EXPECT_TRUE(file.FileOpen(folder.Write("t.col", lines).c_str()));
    EXPECT_TRUE(table.AddEntry(1.0, 1));
    table.SetBelowColor(5);
    return table.FileOpen(file);
}

TEST(ColorTable, EntriesAscendAndEqualValuesKeepTheirOrder) {
    ColorTable table;
    EXPECT_TRUE(table.AddEntry(2.0, 1));
    EXPECT_TRUE(table.AddEntry(-1.0, 2));
    EXPECT_TRUE(table.AddEntry(2.0, 3));
    EXPECT_FALSE(table.AddEntry(std::numeric_limits<double>::quiet_NaN(), 4));
    EXPECT_FALSE(table.AddEntry(std::numeric_limits<double>::infinity(), 4));
    EXPECT_EQ(EntriesOf(table), (Entries{{99.0, 0}, {-1.0, 2}, {2.0, 1}, {2.0, 3}}));
}

// Up to the first missing number, sorted. A missing color below is that of the lowest entry.
TEST(ColorTable, AFileIsReadAndTakesThePlaceOfTheTable) {
    const std::pair<const char*, Entries> cases[] = {
        {"[colortable]\nEntry(2) = 5,0,0,3\nBelow = 4294967295\nentry(0) = 5, 0 ,0,1\n"
         "Entry(1)=-2.5,255,128,0 ; note\nEntry(4)=x\n",
         {{99.0, 0xFFFFFFFF}, {-2.5, 0x0080FF}, {5.0, 0x010000}, {5.0, 0x030000}}},
        {"[ColorTable]\nEntry(0) = 1,9,0,0\nEntry(1) = 0,7,0,0\n", {{99.0, 7}, {0.0, 7}, {1.0, 9}}},
        {"[ColorTable]\n", {{99.0, 0}}}};
    for (const auto& [lines, entries] : cases) {
        ColorTable table;
        EXPECT_TRUE(ReadLines(table, lines)) << lines;
        EXPECT_EQ(EntriesOf(table), entries) << lines;
    }
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
        EXPECT_FALSE(ReadLines(table, lines)) << lines;
        EXPECT_EQ(EntriesOf(table), (Entries{{99.0, 0}})) << lines;
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
    ASSERT_TRUE(file.FileSave(folder.File("t.col").c_str()));
    EXPECT_EQ(TemporaryFolder::Read(folder.File("t.col")),
              "[ColorTable]\r\nBelow    = 4278190080\r\nEntry(0) = -7000,0,240,255\r\n"
              "Entry(1) = 0.1,3,2,1\r\n\r\n");
    for (const double value : {-1.7976931348623157e308, -1.0 / 3.0, 5e-324, 0.30000000000000004,
                               123456789.123456789, 1e22}) {
        table.AddEntry(value, 0);
    }
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
