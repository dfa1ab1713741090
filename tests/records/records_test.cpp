// SPDX-License-Identifier: MIT
// The rules that all records share which keep themselves as keys of a section.
#include <marlin/contours/contour_info.h>
#include <marlin/records/bias_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/records/grid_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/panel_info.h>
#include <marlin/records/paper_grid.h>
#include <marlin/records/sun_illumination_info.h>

#include <algorithm>
#include <concepts>
#include <sstream>
#include <string>
#include <variant>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// What `KeysOf` lists of a record with its defaults, of one with another value in every key, and
// which of the latter's keys change once it has read a section without keys.
struct Expected {
    bool Appends;
    const char* Default;
    const char* Changed;
    const char* Reset;
};

template <class Record>
const Expected Keys{};

template <>
const Expected Keys<LineInfo>{
    true, "LineColor=0\nLineWidth=0.100000\nLineStyle=Solid Line\nLineTrueColor=0\nEnable=1\n",
    // (1, 2, 255) is nearest to pure blue, index 170.
    "LineColor=170\nLineWidth=2.500000\nLineStyle=Dash dot\nLineTrueColor=16712193\nEnable=0\n",
    "LineColor=0\nLineStyle=Solid Line\nLineTrueColor=0\n"};

template <>
const Expected Keys<DXFInfo>{
    true, "DXFLineColor=0\nDXFLineTrueColor=0\nDXFLineWidth=0.000000\nDXFColorMode=0\n",
    "DXFLineColor=90\nDXFLineTrueColor=65281\nDXFLineWidth=3.000000\nDXFColorMode=-7\n",
    "DXFLineColor=0\nDXFLineTrueColor=0\n"};

template <>
const Expected Keys<BiasInfo>{false, "BiasMode=0\n", "BiasMode=-3\n", ""};

template <>
const Expected Keys<SunIlluminationInfo>{
    false,
    "SunIllumunationEnable=0\nSunIllumunationAzimuth=290.000000\n"
    "SunIllumunationElevation=30.000000\nSunIllumunationContrast=1.000000\n",
    "SunIllumunationEnable=1\nSunIllumunationAzimuth=0.123457\n"
    "SunIllumunationElevation=-12.500000\nSunIllumunationContrast=2.250000\n",
    ""};

template <>
const Expected Keys<CMapInfo>{
    true,
    "SymbolizationType=0\nScaleLevel=0\nDisplayType=2\nShowTextGeneric=1\nShowTextOther=0\n"
    "ShowChartContour=1\nShowLightsInfo=0\nAntiCluttering=1\nShowBoundaries=1\n",
    "SymbolizationType=-5\nScaleLevel=6\nDisplayType=7\nShowTextGeneric=0\nShowTextOther=1\n"
    "ShowChartContour=0\nShowLightsInfo=1\nAntiCluttering=0\nShowBoundaries=0\n",
    ""};

template <>
const Expected Keys<GridInfo>{
    true,
    "XInterval=50.000000\nYInterval=50.000000\n"
    "GridStyle=X_TICKS,Y_TICKS,X_MINORTICKS,Y_MINORTICKS,LONG_NORTHTICK\n"
    "TickSize=2.500000\nMinorTickSize=1.000000\nEastingMark=\"\"\nNorthingMark=\"\"\n",
    "XInterval=50.000001\nYInterval=-0.250000\nGridStyle=POINTS\n"
    "TickSize=2.500001\nMinorTickSize=-1.500000\nEastingMark=\" mE\"\nNorthingMark=\"m N \"\n",
    "GridStyle=\nEastingMark=\"\"\nNorthingMark=\"\"\n"};

template <>
const Expected Keys<GeoGridInfo>{
    true,
    // 1/1800 takes 19 decimals to read back, and as a double is 0.000555555555555555555073...
    "LonInterval=0.000555555555555555555\nLatInterval=0.000555555555555555555\n"
    "LatLonStyle=0\nLatLonDecimals=2\nTrailingHemisphereIndicator=0\nDegMinSecSymbols=0\n"
    "GridStyle=1\nGridColor=0\nGridTrueColor=0\n",
    // 0.25 takes 2 decimals; 1/3 is 0.3333333333333333 (16), as a double 0.333...33314829...
    "LonInterval=0.333333333333333315\nLatInterval=0.2500\n"
    "LatLonStyle=3\nLatLonDecimals=-1\nTrailingHemisphereIndicator=1\nDegMinSecSymbols=1\n"
    "GridStyle=0\nGridColor=10\nGridTrueColor=131583\n",
    "GridColor=0\nGridTrueColor=0\n"};

template <>
const Expected Keys<PaperGrid>{
    true,
    "XStep=1.000000\nYStep=1.000000\nVisible=1\nSnapOn=1\nOringinX=0.000000\n"
    "OringinY=0.000000\n",
    "XStep=0.500000\nYStep=2.500000\nVisible=0\nSnapOn=0\nOringinX=1.250000\n"
    "OringinY=-3.000000\n",
    ""};

template <>
const Expected Keys<PanelInfo>{
    false,
    "Width=0.000000\nHeight=0.000000\nPosX=0.000000\nPosY=0.000000\nLockPosSize=0\n"
    "Justification=0\n",
    "Width=0.001000\nHeight=40.500000\nPosX=12.500000\nPosY=-0.250000\nLockPosSize=1\n"
    "Justification=7\n",
    "Justification=0\n"};

template <>
const Expected Keys<ContourInfo>{
    false,
    "SmoothingWindow=0;Values between 0 and 8\nContourLabelSpacing=20.000000\n"
    "SuppressionLength=0.000000;A value of 0 disables suppresion\nSmoothingPasses=1\n"
    "EnableContouring=1\nLabelOrientation=OptimumTextAngle\n",
    "SmoothingWindow=99;Values between 0 and 8\nContourLabelSpacing=20.000999\n"
    "SuppressionLength=-3.250000;A value of 0 disables suppresion\nSmoothingPasses=-4\n"
    "EnableContouring=0\nLabelOrientation=LowToHigh\n",
    "LabelOrientation=OptimumTextAngle\n"};

// The section of which `KeysOf` makes the text; the later of two lines for one key counts. With a
// value, all keys have that one.
Section SectionOf(const std::string& keys, const char* value = nullptr) {
    Section section("Record");
    std::istringstream lines(keys);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equal = line.find('=');
        const std::size_t comment = std::min(line.find(';'), line.size());
        SectionKey& key = section[line.substr(0, equal)];
        key << (value ? value : line.substr(equal + 1, comment - equal - 1));
        if (comment < line.size()) {
            key.SetComments(line.substr(comment + 1));
        }
    }
    return section;
}

template <class Record>
Record ReadFrom(const Section& section, Record record = Record()) {
    static_cast<void>(record.Read(section));
    return record;
}

template <class Record>
std::string Written(const Record& record) {
    Section section("Record");
    static_cast<void>(record.Write(section));
    return KeysOf(section);
}

template <class Record>
class Records : public testing::Test {};

using Kinds = testing::Types<LineInfo, DXFInfo, BiasInfo, SunIlluminationInfo, CMapInfo, GridInfo,
                             GeoGridInfo, PaperGrid, PanelInfo, ContourInfo>;
TYPED_TEST_SUITE(Records, Kinds);

TYPED_TEST(Records, WriteTheirDefaultsAndReadBackEveryKey) {
    EXPECT_EQ(Written(TypeParam()), Keys<TypeParam>.Default);
    const std::string changed = Keys<TypeParam>.Changed;
    EXPECT_EQ(Written(ReadFrom<TypeParam>(SectionOf(changed))), changed);
}

TYPED_TEST(Records, KeepOrResetTheFieldsOfMissingAndUnreadableKeys) {
    const Expected& keys = Keys<TypeParam>;
    const auto changed = ReadFrom<TypeParam>(SectionOf(keys.Changed));
    const std::string reset = KeysOf(SectionOf(std::string(keys.Changed) + keys.Reset));
    EXPECT_EQ(Written(ReadFrom(Section("Empty"), changed)), reset);
    for (const char* const unreadable : {"", "\"\"", "x1", "-"}) {
        Section section = SectionOf(keys.Changed, unreadable);
        section["EastingMark"] << "";  // a text, which takes all of these
        section["NorthingMark"] << "";
        EXPECT_EQ(Written(ReadFrom(section, changed)), reset) << unreadable;
    }
    // A flag takes 0 and 1 alone.
    for (const auto& field : changed.Fields()) {
        if (std::holds_alternative<bool>(field.Value)) {
            Section section = SectionOf(keys.Changed);
            section[field.Key.Name] << 2;
            EXPECT_EQ(Written(ReadFrom(section, changed)), keys.Changed) << field.Key.Name;
        }
    }
}

TYPED_TEST(Records, DifferWhenOneKeyDoes) {
    const Expected& keys = Keys<TypeParam>;
    const Section changed = SectionOf(keys.Changed);
    for (const SectionKey& key : changed.Keys()) {
        const std::string& name = key.GetName();
        const bool isPaletteIndex = name.ends_with("Color") && !name.ends_with("TrueColor");
        Section section = SectionOf(keys.Default);
        section[name] << key.GetValue();
        const auto record = ReadFrom<TypeParam>(section);
        // The exact color beside a palette index wins.
        EXPECT_EQ(Written(record) == keys.Default, isPaletteIndex) << name;
        if constexpr (std::equality_comparable<TypeParam>) {
            EXPECT_EQ(record == TypeParam(), isPaletteIndex) << name;
        }
    }
}

TYPED_TEST(Records, AppendOrReplaceKeysOfWhichTheFirstCount) {
    const Expected& keys = Keys<TypeParam>;
    Section section = SectionOf(keys.Default);
    static_cast<void>(ReadFrom<TypeParam>(SectionOf(keys.Changed)).Write(section));
    const std::string both = Written(TypeParam()) + keys.Changed;
    EXPECT_EQ(section.NumKeys(), SectionOf(both).NumKeys() * (keys.Appends ? 2 : 1));
    EXPECT_EQ(Written(ReadFrom<TypeParam>(section)), keys.Appends ? keys.Default : keys.Changed);
}

TYPED_TEST(Records, ListTheKeysThatTheyWrite) {
    const auto record = ReadFrom<TypeParam>(SectionOf(Keys<TypeParam>.Changed));
    std::string listed;
    for (const auto& [key, value, text] : record.Fields()) {
        const std::string comments = key.Comments;
        listed += key.IsOlder
                      ? ""
                      : key.Name + ("=" + text) + (comments.empty() ? "\n" : ";" + comments + "\n");
        EXPECT_STRNE(key.Meaning, "") << key.Name;
        EXPECT_GT(key.Field, 0) << key.Name;
    }
    EXPECT_EQ(listed, Keys<TypeParam>.Changed);
}

template <class Record>
void ExpectPrefixed(const std::string& keys) {
    const auto changed = ReadFrom<Record>(SectionOf(Keys<Record>.Changed));
    Section section("Record");
    EXPECT_TRUE(changed.Write("Left", section));
    EXPECT_EQ(KeysOf(section), keys);
    EXPECT_TRUE(changed.Write("", section));
    EXPECT_EQ(section.NumKeys(), 2 * SectionOf(keys).NumKeys());
    Record read;
    EXPECT_TRUE(read.Read("Right", section));
    EXPECT_EQ(read, Record());
    for (const char* const prefix : {"LEFT", ""}) {
        read = Record();
        EXPECT_TRUE(read.Read(prefix, section));
        EXPECT_EQ(read, changed) << prefix;
    }
}

TEST(PrefixedRecords, AddThePrefixToTheNamesAndShortenThoseOfPositions) {
    ExpectPrefixed<BiasInfo>("Left.BiasMode=-3\n");
    ExpectPrefixed<SunIlluminationInfo>(
        "Left.SunIllumunationEnable=1\nLeft.SunIllumunationAzimuth=0.123457\n"
        "Left.SunIllumunationElevation=-12.500000\nLeft.SunIllumunationContrast=2.250000\n");
    ExpectPrefixed<PanelInfo>(
        "Left.Width=0.001000\nLeft.Height=40.500000\nLeft.X=12.500000\nLeft.Y=-0.250000\n"
        "Left.LockPosSize=1\nLeft.Justification=7\n");
}

}  // namespace
