// SPDX-License-Identifier: MIT
// The rules that all records share which keep themselves as keys of a section.
#include <marlin/base/format_string.h>
#include <marlin/contours/contour_info.h>
#include <marlin/records/bias_info.h>
#include <marlin/records/depth_label_info.h>
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
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <variant>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// The class's name, whether it appends its keys, what `KeysOf` lists of a record with a value other
// than the default in every key, and which of these keys change once it has read a section without
// keys.
struct Expected {
    const char* Class;
    bool Appends;
    const char* Changed;
    const char* Reset;
};

template <class Record>
const Expected Keys{};

template <>
const Expected Keys<LineInfo>{
    "LineInfo", true,
    // (1, 2, 255) is nearest to pure blue, index 170.
    "LineColor=170\nLineWidth=2.500000\nLineStyle=Dash dot\nLineTrueColor=16712193\nEnable=0\n",
    "LineColor=0\nLineStyle=Solid Line\nLineTrueColor=0\n"};

template <>
const Expected Keys<DXFInfo>{
    "DXFInfo", true,
    "DXFLineColor=90\nDXFLineTrueColor=65281\nDXFLineWidth=3.000000\nDXFColorMode=-7\n",
    "DXFLineColor=0\nDXFLineTrueColor=0\n"};

template <>
const Expected Keys<BiasInfo>{"BiasInfo", false, "BiasMode=-3\n", ""};

template <>
const Expected Keys<SunIlluminationInfo>{
    "SunIlluminationInfo", false,
    "SunIllumunationEnable=1\nSunIllumunationAzimuth=0.123457\n"
    "SunIllumunationElevation=-12.500000\nSunIllumunationContrast=2.250000\n",
    ""};

template <>
const Expected Keys<CMapInfo>{
    "CMapInfo", true,
    "SymbolizationType=-5\nScaleLevel=6\nDisplayType=7\nShowTextGeneric=0\nShowTextOther=1\n"
    "ShowChartContour=0\nShowLightsInfo=1\nAntiCluttering=0\nShowBoundaries=0\n",
    ""};

template <>
const Expected Keys<GridInfo>{
    "GridInfo", true,
    "XInterval=50.000001\nYInterval=-0.250000\nGridStyle=POINTS\n"
    "TickSize=2.500001\nMinorTickSize=-1.500000\nEastingMark=\" mE\"\nNorthingMark=\"m N \"\n",
    "GridStyle=\nEastingMark=\"\"\nNorthingMark=\"\"\n"};

template <>
const Expected Keys<GeoGridInfo>{
    "GeoGridInfo", true,
    // 0.25 takes 2 decimals; 1/3 is 0.3333333333333333 (16), as a double 0.333...33314829...
    "LonInterval=0.333333333333333315\nLatInterval=0.2500\n"
    "LatLonStyle=3\nLatLonDecimals=-1\nTrailingHemisphereIndicator=1\nDegMinSecSymbols=1\n"
    "GridStyle=0\nGridColor=10\nGridTrueColor=131583\n",
    "GridColor=0\nGridTrueColor=0\n"};

template <>
const Expected Keys<PaperGrid>{
    "PaperGrid", true,
    "XStep=0.500000\nYStep=2.500000\nVisible=0\nSnapOn=0\nOringinX=1.250000\n"
    "OringinY=-3.000000\n",
    ""};

template <>
const Expected Keys<PanelInfo>{
    "PanelInfo", false,
    "Width=0.001000\nHeight=40.500000\nPosX=12.500000\nPosY=-0.250000\nLockPosSize=1\n"
    "Justification=7\n",
    "Justification=0\n"};

template <>
const Expected Keys<ContourInfo>{
    "ContourInfo", false,
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

// The keys and defaults in the table of a class in docs/formats/records.md.
std::string TableOf(const std::string& name) {
    const std::regex row("\\| `?(\\w+)`? \\| [^|]* \\| [^|]* \\| `([^|]*)` \\|.*");
    std::ifstream page(MARLIN_SOURCE_DIR "/docs/formats/records.md");
    std::string keys;
    bool isInTable = false;
    for (std::string line; std::getline(page, line);) {
        isInTable = line.starts_with("## ") ? line.ends_with(" `" + name + "`") : isInTable;
        std::smatch cells;
        if (isInTable && std::regex_match(line, cells, row)) {
            keys += cells.str(1) + "=" + cells.str(2) + "\n";
        }
    }
    return keys;
}

bool Succeeded(bool result) {
    return result;
}
bool Succeeded(const ErrorString& result) {
    return result.Empty();
}

template <class Record>
Record ReadFrom(const Section& section, Record record = Record()) {
    EXPECT_TRUE(Succeeded(record.Read(section)));
    return record;
}

template <class Record>
std::string Written(const Record& record) {
    Section section("Record");
    EXPECT_TRUE(Succeeded(record.Write(section)));
    return KeysOf(section);
}

template <class Record>
class Records : public testing::Test {};

using Kinds = testing::Types<LineInfo, DXFInfo, BiasInfo, SunIlluminationInfo, CMapInfo, GridInfo,
                             GeoGridInfo, PaperGrid, PanelInfo, ContourInfo>;
TYPED_TEST_SUITE(Records, Kinds);

TYPED_TEST(Records, WriteTheirDefaultsAsThePageSaysAndReadBackEveryKey) {
    const std::regex comments(";[^\n]*");
    const std::string plain = std::regex_replace(Written(TypeParam()), comments, "");
    EXPECT_EQ(plain, TableOf(Keys<TypeParam>.Class));
    const std::string changed = Keys<TypeParam>.Changed;
    EXPECT_EQ(Written(ReadFrom<TypeParam>(SectionOf(changed))), changed);
}

TEST(RecordsPage, HasTheItemsOfTextsAndDepthLabels) {
    const FormatString items(DepthLabelInfo().ToString(), ',');
    std::string lines;
    for (int i = 0; i < items.Size(); ++i) {
        lines += std::to_string(i) + "=" + items[i] + "\n";
    }
    EXPECT_EQ(TableOf("TextInfo") + TableOf("DepthLabelInfo"), lines);
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
    const std::string plain = Written(TypeParam());
    const Section changed = SectionOf(Keys<TypeParam>.Changed);
    for (const SectionKey& key : changed.Keys()) {
        const std::string& name = key.GetName();
        const bool isPaletteIndex = name.ends_with("Color") && !name.ends_with("TrueColor");
        Section section = SectionOf(plain);
        section[name] << key.GetValue();
        const auto record = ReadFrom<TypeParam>(section);
        // The exact color beside a palette index wins.
        EXPECT_EQ(Written(record) == plain, isPaletteIndex) << name;
        if constexpr (std::equality_comparable<TypeParam>) {
            EXPECT_EQ(record == TypeParam(), isPaletteIndex) << name;
        }
    }
}

TYPED_TEST(Records, AppendOrReplaceKeysOfWhichTheFirstCount) {
    const Expected& keys = Keys<TypeParam>;
    const std::string plain = Written(TypeParam());
    Section section = SectionOf(plain);
    static_cast<void>(ReadFrom<TypeParam>(SectionOf(keys.Changed)).Write(section));
    EXPECT_EQ(section.NumKeys(), SectionOf(plain).NumKeys() * (keys.Appends ? 2 : 1));
    EXPECT_EQ(Written(ReadFrom<TypeParam>(section)), keys.Appends ? plain : keys.Changed);
}

TEST(PrefixedRecords, LeaveTheCommentsOfOthers) {
    Section section = SectionOf("BiasMode=7;mine\n");
    EXPECT_TRUE(BiasInfo().Write(section));
    EXPECT_EQ(KeysOf(section), "BiasMode=0;mine\n");
}

TYPED_TEST(Records, ListTheKeysThatTheyWrite) {
    const auto record = ReadFrom<TypeParam>(SectionOf(Keys<TypeParam>.Changed));
    std::string listed;
    std::map<int, const char*> meanings;
    for (const auto& [key, value, text] : record.Fields()) {
        const std::string comments = key.Comments;
        listed += key.IsOlder
                      ? ""
                      : key.Name + ("=" + text) + (comments.empty() ? "\n" : ";" + comments + "\n");
        EXPECT_STRNE(key.Meaning, "") << key.Name;
        EXPECT_STREQ(meanings.try_emplace(key.Field, key.Meaning).first->second, key.Meaning);
    }
    // Fields are numbered from 1.
    EXPECT_EQ(meanings.begin()->first, 1);
    EXPECT_EQ(meanings.rbegin()->first, static_cast<int>(meanings.size()));
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
