// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/records/text_info.h>

#include <array>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

TextInfo Style(const std::string& font, float size, int style = 0) {
    TextInfo ti;
    ti.SetFont(font);
    ti.SetSize(size);
    ti.SetStyle(static_cast<TextInfo::STYLE>(style));
    return ti;
}

TextInfo Justified(int justification, double rotation = 0) {
    TextInfo ti;
    ti.SetJustification(static_cast<TextInfo::JUSTIFICATION>(justification));
    ti.SetRotation(rotation);
    return ti;
}

TextInfo Read(const std::string& text) {
    TextInfo ti = Style("Courier", 99.0F, 7);
    ti.FromString(text);
    return ti;
}

TEST(TextInfo, SettersKeepSignsAndFontsInOrder) {
    TextInfo ti = Style("", -4.0F);
    ti.SetRectWidth(-7.5F);
    EXPECT_EQ(ti.Font(), "Arial");
    EXPECT_EQ(ti.Size(), 4.0F);
    EXPECT_EQ(ti.RectWidth(), 7.5F);
}

TEST(TextInfo, IsOrderedByFontThenSizeThenStyle) {
    const TextInfo ordered[] = {Style("Arial", 2.0F, 7), Style("ARIAL", 3.0F, 1),
                                Style("arial", 3.0F, 2), Style("Arial Black", 1.0F),
                                Style("Zapf", 0.5F)};
    for (std::size_t i = 0; i < std::size(ordered); ++i) {
        for (std::size_t j = 0; j < std::size(ordered); ++j) {
            EXPECT_EQ(ordered[i] < ordered[j], i < j) << i << " " << j;
        }
    }
    // "_" stands between the capital and the small letters, and before the folded ones.
    EXPECT_TRUE(Style("A_", 1.0F) < Style("AB", 1.0F));
    // Bytes above 127 come last.
    EXPECT_TRUE(Style("Az", 1.0F) < Style("A\xC4", 1.0F));
}

TEST(TextInfo, SizesThatAreNoNumberAreLessThanNothing) {
    const TextInfo nan = Style("Arial", std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(nan < Style("Arial", 1.0F, 1));
    EXPECT_FALSE(Style("Arial", 1.0F) < nan);
}

TEST(TextInfo, OrderIgnoresAllElseAndEqualityDoesNot) {
    std::vector<TextInfo> others(6, Style("ARIAL", 2.5F));
    others[0].SetAnnotation(TextInfo::ANNOTATION_2);
    others[1].SetRotation(1.0);
    others[2].SetJustification(TextInfo::TOP_LEFT);
    others[3].SetColor(1);
    others[4].SetRectWidth(1.0F);
    others[5].SetMultiLine(true);
    const TextInfo plain;
    EXPECT_EQ(plain, Style("aRIAL", 2.5F));
    for (const TextInfo& other : others) {
        EXPECT_FALSE(plain < other || other < plain);
        EXPECT_NE(plain, other);
    }
    EXPECT_NE(plain, Style("Arial", 2.5F, 1));
    EXPECT_NE(plain, Style("Arial", 2.5001F));
    others[1].SetRotation(1e-10);
    EXPECT_EQ(plain, others[1]);
}

TEST(TextInfo, ConvertsItsJustification) {
    // Windows, DXF horizontal and vertical, DXF attachment point.
    const std::array<std::array<int, 4>, 12> expected{{{8, 0, 1, 7},
                                                       {14, 1, 1, 8},
                                                       {10, 2, 1, 9},
                                                       {10, 2, 2, 6},
                                                       {2, 2, 3, 3},
                                                       {6, 1, 3, 2},
                                                       {0, 0, 3, 1},
                                                       {8, 0, 2, 4},
                                                       {14, 1, 2, 5},
                                                       {24, 0, 0, 7},
                                                       {30, 1, 0, 8},
                                                       {26, 2, 0, 9}}};
    const auto codes = [](const TextInfo& ti) {
        return std::array{ti.WinAlignment(), ti.AcadHJust(), ti.AcadVJust(),
                          ti.AcadAttachmentPoint()};
    };
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(codes(Justified(i)), expected[static_cast<std::size_t>(i)]) << i;
    }
    for (const int unknown : {-1, 12, 1000}) {
        EXPECT_EQ(codes(Justified(unknown)), (std::array{24, 0, 0, 1})) << unknown;
    }
}

TEST(TextInfo, ComesBackFromAttachmentPoints) {
    for (int i = 0; i < 12; ++i) {
        TextInfo ti = Justified(i);
        ti.AcadAttachmentPoint(ti.AcadAttachmentPoint());
        EXPECT_EQ(ti.Justification(), i < 9 ? i : i - 9) << i;
    }
    for (const int unknown : {-1, 0, 10, 77}) {
        TextInfo ti = Justified(TextInfo::TOP_LEFT);
        ti.AcadAttachmentPoint(unknown);
        EXPECT_EQ(ti.Justification(), TextInfo::BOTTOM_LEFT) << unknown;
    }
}

TEST(TextInfo, TakesTheJustificationOfDxfTexts) {
    struct {
        int H;
        int V;
        TextInfo::JUSTIFICATION Expected;
    } const cases[] = {{0, 0, TextInfo::BASELINE_LEFT},
                       {1, 0, TextInfo::BASELINE_CENTER},
                       {2, 0, TextInfo::BASELINE_RIGHT},
                       {4, 0, TextInfo::BOTTOM_CENTER},
                       {3, 0, TextInfo::BOTTOM_LEFT},
                       {5, 0, TextInfo::BOTTOM_LEFT},
                       {0, 1, TextInfo::BOTTOM_LEFT},
                       {1, 1, TextInfo::BOTTOM_CENTER},
                       {2, 1, TextInfo::BOTTOM_RIGHT},
                       {4, 1, TextInfo::BOTTOM_LEFT},
                       {0, 2, TextInfo::MIDDLE_LEFT},
                       {1, 2, TextInfo::MIDDLE_CENTER},
                       {2, 2, TextInfo::MIDDLE_RIGHT},
                       {0, 3, TextInfo::TOP_LEFT},
                       {1, 3, TextInfo::TOP_CENTER},
                       {2, 3, TextInfo::TOP_RIGHT},
                       {0, 4, TextInfo::BOTTOM_LEFT},
                       {-1, 0, TextInfo::BOTTOM_LEFT},
                       {12, 0, TextInfo::BOTTOM_RIGHT},
                       {-9, 1, TextInfo::BASELINE_CENTER},
                       {2147483647, 2147483647, TextInfo::BOTTOM_LEFT}};
    for (const auto& c : cases) {
        TextInfo ti = Justified(TextInfo::MIDDLE_LEFT);
        ti.FromAcadJust(c.H, c.V);
        EXPECT_EQ(ti.Justification(), c.Expected) << c.H << " " << c.V;
    }
}

TEST(TextInfo, TurnsTextsThatReadUpsideDown) {
    struct {
        double Rotation;
        double View;
        double Expected;
    } const cases[] = {{180, 0, 0},      {90, 0, 270},  {89.9, 0, 89.9}, {270, 0, 270},
                       {269.5, 0, 89.5}, {0, 0, 0},     {0, 180, 180},   {10, 300, 10},
                       {45, 315, 225},   {350, 80, 350}};
    for (const auto& c : cases) {
        TextInfo ti = Justified(TextInfo::TOP_LEFT, c.Rotation);
        ti.OptTextAngle(c.View);
        EXPECT_EQ(ti.Rotation(), Angle(c.Expected)) << c.Rotation << " " << c.View;
        EXPECT_EQ(ti.Justification(), TextInfo::TOP_LEFT);
    }
}

TEST(TextInfo, MovesTheAnchorOfTurnedTextsToTheOtherSide) {
    constexpr std::array<int, 13> opposite{4, 5, 6, 7, 0, 1, 2, 3, 8, 4, 5, 6, 12};
    for (int i = 0; i < 13; ++i) {
        const TextInfo ti = Justified(i, 180);
        const TextInfo turned = ti.OptTextAngleJust(0.0);
        EXPECT_EQ(turned.Justification(), opposite[static_cast<std::size_t>(i)]) << i;
        EXPECT_EQ(turned.Rotation(), Angle(0.0));
        EXPECT_EQ(ti.Rotation(), Angle(180.0));
        EXPECT_EQ(Justified(i, 45).OptTextAngleJust(0.0), Justified(i, 45));
    }
}

TEST(TextInfo, WritesItsText) {
    EXPECT_EQ(TextInfo().ToString(), "Arial,2.5,0,0,0,0,0,0,0,0");
    TextInfo ti = Style("Times", 1.0F / 3.0F, TextInfo::BOLD | TextInfo::UNDERLINE);
    ti.SetJustification(TextInfo::BASELINE_RIGHT);
    ti.SetColor(0x0000FF);  // red, the palette's index 10
    ti.SetRotation(123.4567891);
    ti.SetRectWidth(1234567.0F);
    ti.SetMultiLine(true);
    ti.SetAnnotation(TextInfo::ANNOTATION_3);
    EXPECT_EQ(ti.ToString(), "Times,0.333333,5,11,10,123.457,1.23457e+06,1,3,255");
    const TextInfo back = Read(ti.ToString());
    EXPECT_EQ(back.ToString(), ti.ToString());
    EXPECT_FLOAT_EQ(back.Size(), 0.333333F);
    EXPECT_EQ(back.Color(), 0xFFUL);
}

TEST(TextInfo, MissingItemsKeepTheDefaults) {
    EXPECT_EQ(Read(""), TextInfo());
    EXPECT_EQ(Read("Times"), Style("Times", 2.5F));
    EXPECT_EQ(Read("Times,3"), Style("Times", 3.0F));
    EXPECT_EQ(Read(",3").Font(), "");
    EXPECT_EQ(Read("Arial,-3,0,0,0,0,-9").Size(), -3.0F);
    EXPECT_EQ(Read("Arial,-3,0,0,0,0,-9").RectWidth(), -9.0F);
    EXPECT_EQ(Read("Arial,x").Size(), 0.0F);
}

TEST(TextInfo, ItemsOutOfRangeAreNotTaken) {
    const TextInfo ti = Read("Arial,2.5,9,12,300,0,0,5,4");
    EXPECT_EQ(ti.Style(), 0);
    EXPECT_EQ(ti.Justification(), TextInfo::BOTTOM_LEFT);
    EXPECT_EQ(ti.Color(), 0UL);
    EXPECT_TRUE(ti.MultiLine());
    EXPECT_EQ(ti.Annotation(), TextInfo::ANNOTATION_0);
    EXPECT_EQ(Read("Arial,2.5,-1,-1,0,0,0,0,-1"), TextInfo());
}

TEST(TextInfo, TheColorWordWinsOverThePaletteIndex) {
    // Index 1 of the palette is pure red.
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0").Color(), 0xFFUL);
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,16711680").Color(), 0xFF0000UL);
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,4294967295").Color(), 0xFFFFFFFFUL);
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,-1").Color(), 0xFFFFFFFFUL);
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,").Color(), 0UL);
    // The older layout of 14 items has no color word, others of more than 9 have.
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,3,1,2,0,1").Color(), 0xFFUL);
    EXPECT_EQ(Read("Arial,2.5,0,0,1,0,0,0,0,3,1,2,0").Color(), 3UL);
}

// The record's destructor is not virtual.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Tells where its own items would begin.
class Extended : public TextInfo {
public:
    using TextInfo::FromString;
    int Begin = 0;

protected:
    int FromString(const FormatString& items) override {
        return Begin = TextInfo::FromString(items);
    }
};

TEST(TextInfo, HandsTheItemsToWhatExtendsIt) {
    for (const auto& [count, begin] :
         {std::pair{1, 10}, std::pair{10, 10}, std::pair{14, 9}, std::pair{17, 10}}) {
        Extended extended;
        extended.FromString(std::string(static_cast<std::size_t>(count - 1), ','));
        EXPECT_EQ(extended.Begin, begin) << count;
    }
}

}  // namespace
