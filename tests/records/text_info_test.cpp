// SPDX-License-Identifier: MIT
#include <marlin/records/text_info.h>

#include <array>
#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using enum TextInfo::JUSTIFICATION;

TextInfo Justified(int justification, double rotation = 0) {
    TextInfo ti;
    ti.SetJustification(static_cast<TextInfo::JUSTIFICATION>(justification));
    ti.SetRotation(rotation);
    return ti;
}

TextInfo Read(const std::string& text) {
    TextInfo ti;
    ti.FromString("Courier,99,7,1,1,1,1,1,1,1");
    ti.FromString(text);
    return ti;
}

TEST(TextInfo, IsOrderedByFontThenSizeThenStyle) {
    const char* const ordered[] = {"Arial,2,7", "ARIAL,3,1",     "arial,3,2", "arial,4,1",
                                   "arial,4,3", "Arial Black,1", "Zapf,0.5"};
    for (const char* const& a : ordered) {
        for (const char* const& b : ordered) {
            EXPECT_EQ(Read(a) < Read(b), &a < &b) << a << " " << b;
        }
    }
    // "_" stands between the capital and the small letters, and before the folded ones.
    EXPECT_TRUE(Read("A_") < Read("AB"));
    // Bytes above 127 come last.
    EXPECT_TRUE(Read("Az") < Read("A\xC4"));
    TextInfo nan;
    nan.SetSize(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(nan < Read("Arial,1,1"));
    EXPECT_FALSE(Read("Arial,1") < nan);
}

TEST(TextInfo, OrderIgnoresAllElseAndEqualityTheCaseOfTheFontAlone) {
    const TextInfo plain;
    const TextInfo other = Read("ARIAL,2.5,0,6,1,1,1,1,2,9");
    EXPECT_FALSE(plain < other || other < plain || plain == other);
    EXPECT_FALSE(plain == Read("Arial,2.5001"));
    EXPECT_EQ(plain, Read("aRIAL,2.5,0,0,0,1e-10"));
}

TEST(TextInfo, ConvertsItsJustification) {
    // Justification, Windows, DXF horizontal and vertical, DXF attachment point, what comes back
    // from that, the other side of the box.
    const std::array<int, 7> cases[] = {
        {0, 8, 0, 1, 7, BOTTOM_LEFT, 4},     {1, 14, 1, 1, 8, BOTTOM_CENTER, 5},
        {2, 10, 2, 1, 9, BOTTOM_RIGHT, 6},   {3, 10, 2, 2, 6, MIDDLE_RIGHT, 7},
        {4, 2, 2, 3, 3, TOP_RIGHT, 0},       {5, 6, 1, 3, 2, TOP_CENTER, 1},
        {6, 0, 0, 3, 1, TOP_LEFT, 2},        {7, 8, 0, 2, 4, MIDDLE_LEFT, 3},
        {8, 14, 1, 2, 5, MIDDLE_CENTER, 8},  {9, 24, 0, 0, 7, BOTTOM_LEFT, 4},
        {10, 30, 1, 0, 8, BOTTOM_CENTER, 5}, {11, 26, 2, 0, 9, BOTTOM_RIGHT, 6},
        {12, 24, 0, 0, 1, TOP_LEFT, 12},     {-1, 24, 0, 0, 1, TOP_LEFT, -1},
        {1000, 24, 0, 0, 1, TOP_LEFT, 1000}};
    for (const auto& [justification, win, h, v, attachment, back, opposite] : cases) {
        const TextInfo ti = Justified(justification, 180);
        EXPECT_EQ(ti.WinAlignment(), win) << justification;
        EXPECT_EQ(ti.AcadHJust(), h) << justification;
        EXPECT_EQ(ti.AcadVJust(), v) << justification;
        EXPECT_EQ(ti.AcadAttachmentPoint(), attachment) << justification;
        TextInfo read;
        read.AcadAttachmentPoint(attachment);
        EXPECT_EQ(read.Justification(), back) << justification;
        // A text that is turned hangs on the other side of its anchor.
        EXPECT_EQ(ti.OptTextAngleJust(0.0), Justified(opposite)) << justification;
        const TextInfo upright = Justified(justification, 45);
        EXPECT_EQ(upright.OptTextAngleJust(0.0), upright) << justification;
    }
    for (const int unknown : {-1, 0, 10, 77}) {
        TextInfo ti = Justified(TOP_LEFT);
        ti.AcadAttachmentPoint(unknown);
        EXPECT_EQ(ti.Justification(), BOTTOM_LEFT) << unknown;
    }
}

TEST(TextInfo, TakesTheJustificationOfDxfTexts) {
    const std::array<int, 3> cases[] = {{0, 0, BASELINE_LEFT},
                                        {1, 0, BASELINE_CENTER},
                                        {2, 0, BASELINE_RIGHT},
                                        {4, 0, BOTTOM_CENTER},
                                        {3, 0, BOTTOM_LEFT},
                                        {5, 0, BOTTOM_LEFT},
                                        {0, 1, BOTTOM_LEFT},
                                        {1, 1, BOTTOM_CENTER},
                                        {2, 1, BOTTOM_RIGHT},
                                        {3, 1, BOTTOM_LEFT},
                                        {3, 2, BOTTOM_LEFT},
                                        {4, 1, BOTTOM_LEFT},
                                        {0, 2, MIDDLE_LEFT},
                                        {1, 2, MIDDLE_CENTER},
                                        {2, 2, MIDDLE_RIGHT},
                                        {0, 3, TOP_LEFT},
                                        {1, 3, TOP_CENTER},
                                        {2, 3, TOP_RIGHT},
                                        {0, 4, BOTTOM_LEFT},
                                        {-1, 0, BOTTOM_LEFT},
                                        {12, 0, BOTTOM_RIGHT},
                                        {-9, 1, BASELINE_CENTER},
                                        {2147483647, 2147483647, BOTTOM_LEFT}};
    for (const auto& [h, v, expected] : cases) {
        TextInfo ti = Justified(MIDDLE_LEFT);
        ti.FromAcadJust(h, v);
        EXPECT_EQ(ti.Justification(), expected) << h << " " << v;
    }
}

TEST(TextInfo, TurnsTextsThatReadUpsideDown) {
    const std::array<double, 3> cases[] = {
        {180, 0, 0}, {90, 0, 270},  {89.9, 0, 89.9}, {270, 0, 270},  {269.5, 0, 89.5},
        {0, 0, 0},   {0, 180, 180}, {10, 300, 10},   {45, 315, 225}, {350, 80, 350}};
    for (const auto& [rotation, view, expected] : cases) {
        TextInfo ti = Justified(TOP_LEFT, rotation);
        ti.OptTextAngle(view);
        EXPECT_EQ(ti, Justified(TOP_LEFT, expected)) << rotation << " " << view;
        EXPECT_EQ(Justified(TOP_LEFT, rotation).OptTextAngleJust(view),
                  Justified(expected == rotation ? TOP_LEFT : BOTTOM_RIGHT, expected));
    }
}

TEST(TextInfo, ReadsTexts) {
    const std::pair<const char*, const char*> cases[] = {
        {"Times,0.33333333,5,11,10,123.4567891,1234567,1,3,255",
         "Times,0.333333,5,11,10,123.457,1.23457e+06,1,3,255"},
        // Missing items keep the defaults.
        {"", "Arial,2.5,0,0,0,0,0,0,0,0"},
        {"Times", "Times,2.5,0,0,0,0,0,0,0,0"},
        {"Times,3", "Times,3,0,0,0,0,0,0,0,0"},
        {",3", ",3,0,0,0,0,0,0,0,0"},
        {"Arial,-3,0,0,0,0,-9", "Arial,-3,0,0,0,0,-9,0,0,0"},
        {"Arial,x", "Arial,0,0,0,0,0,0,0,0,0"},
        // Items out of range are not taken.
        {"Arial,2.5,9,12,300,0,0,5,4", "Arial,2.5,0,0,0,0,0,1,0,0"},
        {"Arial,2.5,-1,-1,0,0,0,0,-1", "Arial,2.5,0,0,0,0,0,0,0,0"},
        // The color word wins over the palette index; index 1 of the palette is pure red, as is 10;
        // 18 is the darkest red, 7 white, 170 pure blue.
        {"Arial,2.5,0,0,1,0,0,0,0", "Arial,2.5,0,0,10,0,0,0,0,255"},
        {"Arial,2.5,0,0,1,0,0,0,0,16711680", "Arial,2.5,0,0,170,0,0,0,0,16711680"},
        {"Arial,2.5,0,0,1,0,0,0,0,4294967295", "Arial,2.5,0,0,7,0,0,0,0,4294967295"},
        {"Arial,2.5,0,0,1,0,0,0,0,-1", "Arial,2.5,0,0,7,0,0,0,0,4294967295"},
        {"Arial,2.5,0,0,1,0,0,0,0,", "Arial,2.5,0,0,0,0,0,0,0,0"},
        // The older layout of 14 items has no color word, others of more than 9 have.
        {"Arial,2.5,0,0,1,0,0,0,0,3,1,2,0,1", "Arial,2.5,0,0,10,0,0,0,0,255"},
        {"Arial,2.5,0,0,1,0,0,0,0,3,1,2,0", "Arial,2.5,0,0,18,0,0,0,0,3"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Read(text).ToString(), expected) << text;
    }
}

}  // namespace
