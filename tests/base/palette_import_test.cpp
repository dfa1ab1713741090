// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/colors/palette_import.h>

#include <cstdio>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// A color word as RRGGBB.
std::string HexText(unsigned long word) {
    char text[7];
    std::snprintf(text, sizeof text, "%06lX",
                  (word & 0xFF) << 16 | (word & 0xFF00) | (word >> 16 & 0xFF));
    return text;
}

// The color below, then each entry as value:color.
std::string TextOf(const ColorTable& table) {
    std::string text = HexText(table.BelowColor());
    for (int i = 0; i < table.NumEntries(); ++i) {
        char value[20];
        std::snprintf(value, sizeof value, " %g:", table.EntryValue(i));
        text += value + HexText(table.EntryColor(i));
    }
    return text;
}

// The message without the path.
std::string MessageOf(const std::string& text, ColorTable& table) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("t.cpt", text);
    const std::string message = ImportPalette(path, table).Text();
    return message.starts_with(path) ? message.substr(path.size()) : message;
}

std::string Imported(const std::string& text) {
    ColorTable table;
    table.AddEntry(99.0, 1);
    EXPECT_EQ(MessageOf(text, table), "") << text;
    return TextOf(table);
}

TEST(PaletteImport, SlicesOfOneColorBecomeEntriesAndOuterColorsStandBelowAndAtTheEnd) {
    const std::pair<const char*, const char*> table[] = {
        {"#COLOR_MODEL=+RGB\n# RANGE = -30/0\n0   10 20 30    0.5  10 20 30   L ;deep\n"
         "0.5 navy 0.75 #000080 B\n0.75 128 1    128/128/128     U  # the shallows\n"
         "B 1/2/3\nF -\nN 128/128/128\n",
         "010203 -30:0A141E -15:000080 -7.5:808080 0:808080"},
        {"B 1 2 3\n0 red 1 red\nF #040506\nN -\n", "010203 0:FF0000 1:040506"},
        {"B -\n0 red 1 red\n3 blue 4 blue\nF - # none\n", "FF0000 0:FF0000 3:0000FF 4:0000FF"},
        {"# RANGE of things, COLOR_MODEL = CMYK, CYCLIC or not\r\n\r\n;only a label\r\n"
         "\t0 red 1 red U ; # x y z\r\n2 red 3 red # 4 blue",
         "FF0000 0:FF0000 2:FF0000 3:FF0000"}};
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(Imported(text), expected) << text;
    }
}

// Middles of eighths from 0 to 255: 255 * (2 i + 1) / 16 = 15.9375 + 31.875 i.
TEST(PaletteImport, ASliceOfTwoColorsBecomesEightStepsOfTheirMiddles) {
    EXPECT_EQ(Imported("0 black 16 red\n"),
              "000000 0:100000 2:300000 4:500000 6:700000 8:8F0000 10:AF0000 12:CF0000 14:EF0000 "
              "16:FF0000");
}

// Hue runs down from 300 in eighths of 300: the middles are 281.25, 243.75, ... 18.75 degrees.
// A hue of 281.25 lies 41.25 of 60 degrees behind blue, so red is 255 * 0.6875 = 175.3.
TEST(PaletteImport, AnHsvSliceTakesTheRoadOfItsHueNumbers) {
    for (const char* text :
         {"# COLOR_MODEL = hsv\n0 magenta 8 red\n", "#COLOR_MODEL=+HSV\n0 300-1-1 8 0-1-1\n",
          "# COLOR_MODEL = HSV\r\n0 300 1 1 8 0 1 1\r\n"}) {
        EXPECT_EQ(Imported(text),
                  "FF00FF 0:AF00FF 1:1000FF 2:008FFF 3:00FFCF 4:00FF30 5:70FF00 6:FFEF00 7:FF5000 "
                  "8:FF0000")
            << text;
    }
    // Otherwise by red and blue; a full turn of hue is a slice of two colors.
    EXPECT_NE(Imported("0 300-1-1 8 0-1-1\n").find(" 4:FF0070"), std::string::npos);
    EXPECT_NE(Imported("# COLOR_MODEL = HSV\n0 0-1-1 8 360-1-1\n").find(" 7:"), std::string::npos);
}

TEST(PaletteImport, EveryFormOfAColorIsRead) {
    const std::pair<const char*, const char*> table[] = {
        {"1/2/255", "0102FF"},    {"127.5/0/0.4", "800000"}, {"#0af", "00AAFF"},
        {"#00Ff7F", "00FF7F"},    {"120-1-0.5", "008000"},   {"360-0.5-1", "FF8080"},
        {"0", "000000"},          {"254.6", "FFFFFF"},       {"gray0", "000000"},
        {"grey100", "FFFFFF"},    {"Gray50", "7F7F7F"},      {"gray90", "E5E5E5"},
        {"gray", "BEBEBE"},       {"SteelBlue3", "4F94CD"},  {"aliceblue", "F0F8FF"},
        {"yellowgreen", "9ACD32"}};
    for (const auto& [color, hex] : table) {
        EXPECT_EQ(Imported("0 "s + color + " 1 " + color), hex + " 0:"s + hex + " 1:" + hex);
    }
}

TEST(PaletteImport, ARangeScalesSlicesOfTheUnitIntervalAndAHingeEachSideOnItsOwn) {
    const std::string slices = "-1 red -0.5 red\n-0.5 lime 0 lime\n0 blue 1 blue\n";
    const std::pair<std::string, const char*> table[] = {
        {"# HARD_HINGE\n# RANGE = -800/10\n" + slices,
         "FF0000 -800:FF0000 -400:00FF00 0:0000FF 10:0000FF"},
        {"# SOFT_HINGE\n# RANGE = -800/10\n" + slices,
         "FF0000 -800:FF0000 -400:00FF00 0:0000FF 10:0000FF"},
        {"\xEF\xBB\xBF# HINGE = 20\n# RANGE = 10/100\n" + slices,
         "FF0000 10:FF0000 15:00FF00 20:0000FF 100:0000FF"},
        {"#SOFT_HINGE=2e1\n# RANGE = 10/100\n" + slices,
         "FF0000 10:FF0000 15:00FF00 20:0000FF 100:0000FF"},
        {"# RANGE = -800/10\n" + slices, "FF0000 -1:FF0000 -0.5:00FF00 0:0000FF 1:0000FF"},
        {"# RANGE = 5/7\n0 red 2 red\n", "FF0000 0:FF0000 2:FF0000"},
        {"# HARD_HINGE\n# RANGE = 5/7\n0 red 1 red\n", "FF0000 5:FF0000 7:FF0000"},
        {"0 red 1 red\n# RANGE = 5/7\n", "FF0000 5:FF0000 7:FF0000"}};
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(Imported(text), expected) << text;
    }
}

const std::pair<std::string, std::string> refused[] = {
    {"", ":1: the palette has no slices"},
    {"# a\n\nB red\n", ":3: the palette has no slices"},
    {"0 red 1 red\0\n"s, ":1: not a text file"},
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
    {"0 red 1 red\n#" + std::string(5000, 'x'), ":2: the line is longer than 4096 characters"},
    {std::string(5 << 20, '\n'), ": larger than 4 MiB, which no palette is"},
    {"0 " + std::string(100, '\1') + " 1 red",
     ":1: \"" + std::string(40, '?') + "...\" is not a color"}};

TEST(PaletteImport, WhatDoesNotReadIsNamedWithItsLineAndChangesNothing) {
    ColorTable table;
    table.AddEntry(1.0, 0x030201);
    table.SetBelowColor(5);
    for (const auto& [text, message] : refused) {
        EXPECT_EQ(MessageOf(text, table), message);
    }
    for (const char* color : {"redd", "gray101", "256", "-1", "-", "1/2", "1/2/3/4", "1/2/3@50",
                              "361-1-1", "0-1.5-1", "#12345", "#12345g"}) {
        EXPECT_EQ(MessageOf("0 "s + color + " 1 red\n", table),
                  ":1: \""s + color + "\" is not a color");
    }
    const TemporaryFolder folder;
    EXPECT_EQ(ImportPalette(folder.File("no.cpt"), table).Text(),
              folder.File("no.cpt") + ": No such file or directory");
    EXPECT_EQ(ImportPalette(folder.File(""), table).Text(), folder.File("") + ": Is a directory");
    EXPECT_EQ(TextOf(table), "050000 1:010203");
}

}  // namespace
