// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/colors/palette_import.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Values with colors written as 0xRRGGBB.
using Entries = std::vector<std::pair<double, unsigned long>>;

unsigned long Swapped(unsigned long word) {
    return (word & 0xFF) << 16 | (word & 0xFF00) | word >> 16;
}

Entries EntriesOf(const ColorTable& table) {
    Entries entries;
    for (int i = 0; i < table.NumEntries(); ++i) {
        entries.emplace_back(table.EntryValue(i), Swapped(table.EntryColor(i)));
    }
    return entries;
}

ErrorString ImportText(std::string_view text, ColorTable& table) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("t.cpt", text);
    const ErrorString result = ImportPalette(path, table);
    const std::string& message = result.Text();
    return message.starts_with(path) ? message.substr(path.size()) : message;
}

ColorTable Imported(std::string_view text) {
    ColorTable table;
    EXPECT_EQ(ImportText(text, table).Text(), "") << text;
    return table;
}

TEST(PaletteImport, SlicesOfOneColorBecomeEntriesScaledByTheRange) {
    ColorTable table;
    table.AddEntry(99.0, 1);
    ASSERT_TRUE(ImportPalette(MARLIN_SOURCE_DIR "/tests/data/steps.cpt", table).Empty());
    EXPECT_EQ(EntriesOf(table),
              (Entries{{-30.0, 0x0A141E}, {-15.0, 0x000080}, {-7.5, 0x808080}, {0.0, 0x808080}}));
    EXPECT_EQ(Swapped(table.BelowColor()), 0x010203UL);
}

// Middles of eighths from 0 to 255: 255 * (2 i + 1) / 16 = 15.9375 + 31.875 i.
TEST(PaletteImport, ASliceOfTwoColorsBecomesEightStepsOfTheirMiddles) {
    const ColorTable table = Imported("0 black 16 red\n");
    EXPECT_EQ(EntriesOf(table), (Entries{{0.0, 0x100000},
                                         {2.0, 0x300000},
                                         {4.0, 0x500000},
                                         {6.0, 0x700000},
                                         {8.0, 0x8F0000},
                                         {10.0, 0xAF0000},
                                         {12.0, 0xCF0000},
                                         {14.0, 0xEF0000},
                                         {16.0, 0xFF0000}}));
    EXPECT_EQ(table.BelowColor(), 0UL);
}

// Hue runs down from 300 in eighths of 300: the middles are 281.25, 243.75, ... 18.75 degrees.
// A hue of 281.25 lies 41.25 of 60 degrees behind blue, so red is 255 * 0.6875 = 175.3.
TEST(PaletteImport, AnHsvSliceTakesTheRoadOfItsHueNumbers) {
    const Entries expected = {{0.0, 0xAF00FF},   {0.125, 0x1000FF}, {0.25, 0x008FFF},
                              {0.375, 0x00FFCF}, {0.5, 0x00FF30},   {0.625, 0x70FF00},
                              {0.75, 0xFFEF00},  {0.875, 0xFF5000}, {1.0, 0xFF0000}};
    for (const char* text :
         {"# COLOR_MODEL = hsv\n0 magenta 1 red\n", "#COLOR_MODEL=+HSV\n0 300-1-1 1 0-1-1\n",
          "# COLOR_MODEL = HSV\r\n0 300 1 1 1 0 1 1\r\n"}) {
        EXPECT_EQ(EntriesOf(Imported(text)), expected) << text;
    }
    EXPECT_EQ(Imported("0 300-1-1 1 0-1-1\n").EntryColor(4), 0x7000FFUL);  // by red and blue
}

TEST(PaletteImport, AFullTurnOfHueIsASliceOfTwoColors) {
    EXPECT_EQ(Imported("# COLOR_MODEL = HSV\n0 0-1-1 8 360-1-1\n").NumEntries(), 9);
}

TEST(PaletteImport, EveryFormOfAColorIsRead) {
    const std::pair<const char*, unsigned long> table[] = {
        {"1/2/255", 0x0102FF},    {"127.5/0/0.4", 0x800000}, {"#0af", 0x00AAFF},
        {"#00Ff7F", 0x00FF7F},    {"120-1-0.5", 0x008000},   {"360-0.5-1", 0xFF8080},
        {"0", 0x000000},          {"254.6", 0xFFFFFF},       {"gray0", 0x000000},
        {"grey100", 0xFFFFFF},    {"Gray50", 0x7F7F7F},      {"gray90", 0xE5E5E5},
        {"gray", 0xBEBEBE},       {"SteelBlue3", 0x4F94CD},  {"aliceblue", 0xF0F8FF},
        {"yellowgreen", 0x9ACD32}};
    for (const auto& [color, expected] : table) {
        const std::string text = std::string("0 ") + color + " 1 " + color + "\n";
        EXPECT_EQ(EntriesOf(Imported(text)), (Entries{{0.0, expected}, {1.0, expected}})) << color;
    }
}

TEST(PaletteImport, OuterColorsStandBelowAndAtTheEnd) {
    const ColorTable given = Imported("B 1 2 3\n0 red 1 red\nF #040506\nN -\n");
    EXPECT_EQ(Swapped(given.BelowColor()), 0x010203UL);
    EXPECT_EQ(EntriesOf(given), (Entries{{0.0, 0xFF0000}, {1.0, 0x040506}}));
    const ColorTable absent = Imported("B -\n0 red 1 blue\nF - # none\n");
    EXPECT_EQ(Swapped(absent.BelowColor()), 0xFF0000UL);
    EXPECT_EQ(EntriesOf(absent).back(), (std::pair<double, unsigned long>{1.0, 0x0000FF}));
}

TEST(PaletteImport, AHingeScalesEachSideOnItsOwn) {
    const char* slices = "-1 red -0.5 red\n-0.5 lime 0 lime\n0 blue 1 blue\n";
    for (const char* hinge :
         {"# HARD_HINGE\n", "# SOFT_HINGE\n", "#HARD_HINGE = 0\n", "\xEF\xBB\xBF# HINGE = 0\n"}) {
        const std::string text = std::string(hinge) + "# RANGE = -800/10\n" + slices;
        EXPECT_EQ(
            EntriesOf(Imported(text)),
            (Entries{{-800.0, 0xFF0000}, {-400.0, 0x00FF00}, {0.0, 0x0000FF}, {10.0, 0x0000FF}}));
    }
    EXPECT_EQ(Imported(std::string("# RANGE = -800/10\n") + slices).EntryValue(0), -1.0);
    for (const char* hinge : {"# HINGE = 20\n", "# SOFT_HINGE=2e1\n"}) {
        EXPECT_EQ(
            EntriesOf(Imported(std::string(hinge) + "# RANGE = 10/100\n" + slices)),
            (Entries{{10.0, 0xFF0000}, {15.0, 0x00FF00}, {20.0, 0x0000FF}, {100.0, 0x0000FF}}));
    }
}

TEST(PaletteImport, OnlySlicesOfTheUnitIntervalAreScaled) {
    EXPECT_EQ(Imported("# RANGE = 5/7\n0 red 2 red\n").EntryValue(1), 2.0);
    EXPECT_EQ(Imported("# HARD_HINGE\n# RANGE = 5/7\n0 red 1 red\n").EntryValue(0), 5.0);
    EXPECT_EQ(Imported("0 red 1 red\n# RANGE = 5/7\n").EntryValue(1), 7.0);
}

TEST(PaletteImport, CommentsLabelsAndMarksAreNoPartOfASlice) {
    const ColorTable table = Imported(
        "# RANGE of things, COLOR_MODEL = CMYK, CYCLIC or not\r\n\r\n;only a label\r\n"
        "\t0 red 1 red U ; # x y z\r\n2 red 3 red # 4 blue");
    EXPECT_EQ(EntriesOf(table), (Entries{{0.0, 0xFF0000}, {2.0, 0xFF0000}, {3.0, 0xFF0000}}));
}

struct Refused {
    std::string_view Text;
    const char* Message;
};

using namespace std::string_view_literals;

const Refused refused[] = {
    {"", ":1: the palette has no slices"},
    {"# a\n\nB red\n", ":3: the palette has no slices"},
    {"0 red 1 red\0\n"sv, ":1: not a text file"},
    {"0 red 1 red\n1 red 2\n", ":2: a slice is two times a value and a color"},
    {"\n0 red\n", ":2: categorical palettes are not read"},
    {"0 red ;label\n", ":1: categorical palettes are not read"},
    {"0 red 1 red\n# CYCLIC\n", ":2: cyclic palettes are not read"},
    {"0 red 1 red L U\n", ":1: a slice is two times a value and a color"},
    {"x red 1 red\n", ":1: \"x\" is not a number"},
    {"0 red 1m red\n", ":1: \"1m\" is not a number"},
    {"0 red nan red\n", ":1: \"nan\" is not a number"},
    {"1 red 1 red\n", ":1: the slice's values do not ascend"},
    {"2 red 1 red\n", ":1: the slice's values do not ascend"},
    {"0 red 2 red\n1 red 3 red\n", ":2: the slice begins below the end of the one before it"},
    {"2 red 3 red\n0 red 1 red\n", ":2: the slice begins below the end of the one before it"},
    {"0 redd 1 red\n", ":1: \"redd\" is not a color"},
    {"0 gray101 1 red\n", ":1: \"gray101\" is not a color"},
    {"0 256 1 red\n", ":1: \"256\" is not a color"},
    {"0 -1 1 red\n", ":1: \"-1\" is not a color"},
    {"0 - 1 red\n", ":1: \"-\" is not a color"},
    {"0 1/2 1 red\n", ":1: \"1/2\" is not a color"},
    {"0 1/2/3/4 1 red\n", ":1: \"1/2/3/4\" is not a color"},
    {"0 1/2/3@50 1 red\n", ":1: \"1/2/3@50\" is not a color"},
    {"0 361-1-1 1 red\n", ":1: \"361-1-1\" is not a color"},
    {"0 0-1.5-1 1 red\n", ":1: \"0-1.5-1\" is not a color"},
    {"0 #12345 1 red\n", ":1: \"#12345\" is not a color"},
    {"0 #12345g 1 red\n", ":1: \"#12345g\" is not a color"},
    {"0 1 2 3 1 1 2 256\n", ":1: \"1 2 256\" is not a color"},
    {"# COLOR_MODEL = HSV\n0 0 1 2 1 0 1 1\n", ":2: \"0 1 2\" is not a color"},
    {"B red blue\n", ":1: B, F and N take one color"},
    {"N redd\n", ":1: \"redd\" is not a color"},
    {"# COLOR_MODEL = CMYK\n", ":1: the color model \"CMYK\" is not read"},
    {"# RANGE = 5\n", ":1: the range \"5\" is not low/high"},
    {"# RANGE = 5/x\n", ":1: the range \"5/x\" is not low/high"},
    {"# RANGE = 7/5\n", ":1: the range \"7/5\" is not low/high"},
    {"# HARD_HINGE = 3m\n", ":1: the hinge \"3m\" is not a number"},
    {"# HINGE =\n", ":1: the hinge \"\" is not a number"},
    {"# HARD_HINGE\n# RANGE = 0/5\n-1 red 1 red\n", ":2: the range does not enclose the hinge"},
    {"# HINGE = 5\n# RANGE = 0/5\n-1 red 1 red\n", ":2: the range does not enclose the hinge"},
};

TEST(PaletteImport, WhatDoesNotReadIsNamedWithItsLineAndChangesNothing) {
    for (const Refused& row : refused) {
        ColorTable table;
        table.AddEntry(1.0, 0x030201);
        table.SetBelowColor(5);
        EXPECT_EQ(ImportText(row.Text, table).Text(), row.Message) << row.Text;
        EXPECT_EQ(EntriesOf(table), (Entries{{1.0, 0x010203}})) << row.Text;
        EXPECT_EQ(table.BelowColor(), 5UL) << row.Text;
    }
}

TEST(PaletteImport, OverlongLinesFilesAndItemsFailShortly) {
    ColorTable table;
    EXPECT_EQ(ImportText("0 red 1 red\n#" + std::string(5000, 'x'), table).Text(),
              ":2: the line is longer than 4096 characters");
    EXPECT_EQ(ImportText(std::string(5 << 20, '\n'), table).Text(),
              ": larger than 4 MiB, which no palette is");
    EXPECT_EQ(ImportText("0 " + std::string(100, '\x01') + " 1 red", table).Text(),
              ":1: \"" + std::string(40, '?') + "...\" is not a color");
}

TEST(PaletteImport, AFileThatCannotBeReadIsNamedWithTheReason) {
    const TemporaryFolder folder;
    ColorTable table;
    EXPECT_EQ(ImportPalette(folder.File("no.cpt"), table).Text(),
              folder.File("no.cpt") + ": No such file or directory");
    EXPECT_EQ(ImportPalette(folder.File(""), table).Text(), folder.File("") + ": Is a directory");
}

TEST(PaletteImport, TheExamplePaletteRunsFromTheDeepToTheShore) {
    ColorTable table;
    ASSERT_TRUE(ImportPalette(MARLIN_SOURCE_DIR "/examples/palettes/shelf.cpt", table).Empty());
    EXPECT_EQ(table.NumEntries(), 8 * 8 + 2);
    EXPECT_EQ(table.EntryValue(0), -2000.0);
    EXPECT_EQ(EntriesOf(table)[64], (std::pair<double, unsigned long>{0.0, 0xE2D0A0}));
    EXPECT_EQ(EntriesOf(table)[65], (std::pair<double, unsigned long>{50.0, 0xC6B080}));
}

}  // namespace
