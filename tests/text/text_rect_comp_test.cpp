// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <clocale>
#include <cmath>
#include <future>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/font_tables.h>
#include <text/style.h>

namespace {

// A depth needs the style of depth labels, and 0 is no text.
template <class Style>
concept TakesDepths = requires(TextRectComp rects, Style style) {
    rects(style, 7.25);
}
|| requires(TextRectComp rects, Style style) {
    rects(style, 0);
};
static_assert(TakesDepths<DepthLabelInfo> && !TakesDepths<TextInfo>);

using Lines = std::vector<std::string>;

double WidthOf(const TextInfo& ti, const std::string& text) {
    return TextRectComp()(ti, text).width;
}

// A monospaced style whose letters are a whole number of eighths wide, and texts of up to eight as
// wide as so many letters: no width is rounded.
TextInfo Exact() {
    for (float size = 2.0F;; size += 0.015625F) {
        const TextInfo ti = Style("Liberation Mono", size);
        const double letter = WidthOf(ti, "x");
        if (letter * 8 == std::floor(letter * 8) && WidthOf(ti, "xxxx") == 4 * letter &&
            WidthOf(ti, "xxx") == 3 * letter && WidthOf(ti, "xxxxxxxx") == 8 * letter) {
            return ti;
        }
    }
}

// The style, wrapped to so many letters.
TextInfo Wrapped(double letters) {
    static const TextInfo exact = Exact();
    TextInfo ti = exact;
    ti.SetRectWidth(static_cast<float>(WidthOf(ti, "x") * letters));
    ti.SetMultiLine(true);
    return ti;
}

Lines LinesOf(double letters, const std::string& text) {
    TextRectComp rects;
    static_cast<void>(rects(Wrapped(letters), text));
    Lines lines;
    for (int i = 0; i < rects.GetNumberOfSubStrings(); ++i) {
        lines.push_back(rects.GetSubString(i));
    }
    return lines;
}

// Each after the other of the same name, so that none is measured with what is kept of another.
TEST(TextRectComp, SizesAgreeWithTheTablesOfTheFaceThatItFinds) {
    const struct {
        const char* Font;
        int Style;
        const char* Found;
    } cases[] = {{"Liberation Sans", 0, "Regular"},
                 {"Liberation Sans", TextInfo::BOLD, "Bold"},
                 {"Liberation Sans", TextInfo::ITALIC | TextInfo::UNDERLINE, "Italic"},
                 {"DejaVu Serif", TextInfo::BOLD | TextInfo::ITALIC, "Bold Italic"}};
    for (const auto& c : cases) {
        const TextInfo ti = Style(c.Font, 2.5F, c.Style);
        PLATFORM::FontMatch match;
        ASSERT_TRUE(TextRectComp::FindFace(ti, match));
        EXPECT_EQ(match.Family + ' ' + match.Style, std::string(c.Font) + ' ' + c.Found);
        const FontTables tables(match.Path);
        const double height = std::ceil(2500.0 * TextHeightFactComp::Get()(ti));
        for (const std::string text : {"x", "Depth 12.5 m", "AVAVA\xC4\xE9"}) {
            double units = 0;
            for (const char character : text) {
                units += tables.Advance(static_cast<unsigned char>(character));
            }
            TextRectComp rects;
            const TextRectComp::Rect rect = rects(ti, text);
            const double width = std::round(units * height / tables.Cell());
            EXPECT_NEAR(rect.width * 1000.0, width, 1e-6) << text;
            EXPECT_NEAR(rect.height * 1000.0, height, 1e-6) << text;
            EXPECT_EQ(rects.GetSubString(0), text);
            EXPECT_EQ(rects.GetTextHeight(), rect.height);
        }
    }
}

TEST(TextRectComp, PutsTheJustifiedPointOnTheOriginAtEveryRotation) {
    // In shares of width and height from corner 0, for the twelve justifications and a wrong one.
    const double across[] = {0, 0.5, 1, 1, 1, 0.5, 0, 0, 0.5, 0, 0.5, 1, 0};
    const double up[] = {0, 0, 0, 0.5, 1, 1, 1, 0.5, 0.5, 0, 0, 0, 0};
    TextRectComp rects;
    for (int justification = 0; justification <= 12; ++justification) {
        for (const double degrees : {0.0, 30.0, 90.0, 200.25}) {
            TextInfo ti = Style("DejaVu Serif", 4.0F);
            ti.SetJustification(static_cast<TextInfo::JUSTIFICATION>(justification));
            ti.SetRotation(Angle(degrees));
            const TextRectComp::Rect rect = rects(ti, "Sounding");
            const auto& p = rect.points;
            const double a = across[justification];
            const double b = up[justification];
            EXPECT_NEAR(p[0].x + a * (p[1].x - p[0].x) + b * (p[3].x - p[0].x), 0.0, 1e-9);
            EXPECT_NEAR(p[0].y + a * (p[1].y - p[0].y) + b * (p[3].y - p[0].y), 0.0, 1e-9);
            // Clockwise: the own x axis of a text turned by 90 degrees points down.
            EXPECT_NEAR(p[1].x - p[0].x, rect.width * std::cos(degrees * M_PI / 180), 1e-9);
            EXPECT_NEAR(p[1].y - p[0].y, -rect.width * std::sin(degrees * M_PI / 180), 1e-9);
            EXPECT_EQ(rect.rotation, Angle(degrees));
        }
    }
}

TEST(TextRectComp, BoxesOnTheBaselineAreLowerByDescentAndInternalLeading) {
    TextRectComp rects;
    TextInfo ti = Style("Liberation Sans", 2.5F);
    for (int justification = 0; justification <= 12; ++justification) {
        ti.SetJustification(static_cast<TextInfo::JUSTIFICATION>(justification));
        const TextRectComp::Rect box = rects(ti, "Sounding");
        const bool isOnBaseline = justification >= 9 && justification <= 11;
        // (262 + 471) units of 2500, in a font of ceil(2500 * 2500 / 1694) units.
        const double hidden = isOnBaseline ? 733 * 3690 / 2500 : 0;
        EXPECT_NEAR(box.height, (3690 - hidden) / 1000.0, 1e-9) << justification;
        EXPECT_EQ(box.width, WidthOf(Style("Liberation Sans", 2.5F), "Sounding"));
        EXPECT_DOUBLE_EQ(rects.GetTextHeight(), box.height);
    }
}

TEST(TextRectComp, AnEmptyTextLeavesLinesAndHeightAndAllOverloadsAgree) {
    TextRectComp rects;
    EXPECT_EQ(rects.GetNumberOfSubStrings() + rects.GetTextHeight(), 0.0);
    const TextInfo ti;
    const auto points = rects(ti, "abc").points;
    // Each ends at the first null character.
    EXPECT_EQ(rects(ti, std::string("abc\0d", 5)).points, points);
    EXPECT_EQ(rects(ti, "abc", 5.0).points, points);
    EXPECT_EQ(rects(ti, std::string("abc\0d", 5), -1.0).points, points);
    const double height = rects.GetTextHeight();
    for (const char* const empty : {"", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(rects(ti, empty).width + rects(ti, empty).height, 0.0);
    }
    EXPECT_EQ(rects.GetTextHeight(), height);
    std::string line = "kept";
    EXPECT_FALSE(rects.GetSubString(1, line) || rects.GetSubString(-1, line));
    EXPECT_EQ(line, "kept");
    EXPECT_TRUE(rects.GetSubString(0, line));
    EXPECT_EQ(line + rects.GetSubString(1), "abc");
}

TEST(TextRectComp, AStyleThatCannotBeMeasuredHasNoSizeAndNoFace) {
    TextRectComp rects;
    PLATFORM::FontMatch match;
    match.Index = 77;
    for (const float size : {0.0F, std::nanf(""), 1e30F}) {
        TextInfo ti = Style("Arial", size);
        for (const bool multiLine : {false, true}) {
            ti.SetMultiLine(multiLine);
            static_cast<void>(rects(TextInfo(), "before"));
            EXPECT_EQ(rects(ti, "abc").width + rects(ti, "abc").height, 0.0) << size;
            EXPECT_EQ(rects.GetNumberOfSubStrings(), 0);
            EXPECT_FALSE(TextRectComp::FindFace(ti, match));
        }
    }
    EXPECT_EQ(match.Index, 77);
}

TEST(TextRectComp, WrapsBehindSpacesAndHyphensAndInsideLongWords) {
    const struct {
        double Letters;
        const char* Text;
        Lines Expected;
    } cases[] = {
        {5, "short", {"short"}},
        {8, "one two three", {"one two", "three"}},
        {7.5, "one two three", {"one", "two", "three"}},  // "two " with its space is too wide
        {4, "sea floor", {"sea", "flo", "or"}},
        {6, "sea-floor", {"sea-", "floor"}},
        {5.5, "a  b   c    d", {"a  b", "c", "d"}},
        {4.5, "   ab cd", {"", "ab", "cd"}},
        // Of a broken word only less than the width, of the lines behind it the whole width.
        {3, "abcdefgh", {"ab", "cde", "fgh"}},
        {4.5, "ab cdefghijk", {"ab", "cdef", "ghij", "k"}},
        {4.5, "abcdef gh", {"abcd", "ef", "gh"}},
        {4.5, "abcdef-gh", {"abcd", "ef-", "gh"}},
        {4.5, "abcdefg h ijklm", {"abcd", "efg", "h", "ijkl", "m"}},
        {0, "abc", {"a", "b", "c"}},
        {0.5, "a-b", {"a", "-", "b"}},
        {9, "ab\\P", {"ab", ""}},
        {2, "abc\\Pab cd", {"a", "bc", "a", "b", "cd"}},
        {9, "\\Pab", {"", "ab"}},
        {9, "a\\P\\Pb", {"a", "", "b"}},
        {9, "a\\P\\P", {"a", "", ""}},
        {9, "a\\pb\\", {"a\\pb\\"}},
        // Two letters with accents, a Greek one, the euro sign: 2, 2, 2 and 3 bytes of UTF-8.
        {2.5,
         "\xC3\xA9\xC3\xA8\xCE\xA9\xE2\x82\xAC!",
         {"\xC3\xA9\xC3\xA8", "\xCE\xA9\xE2\x82\xAC", "!"}},
        {0, "\xE2\x82\xAC\xC3\xA9", {"\xE2\x82\xAC", "\xC3\xA9"}},
        // A byte that is not UTF-8 makes each byte a character.
        {2.5, "\xC3\xA9\xC3\xA9\xE9", {"\xC3\xA9", "\xC3\xA9", "\xE9"}}};
    for (const auto& c : cases) {
        EXPECT_EQ(LinesOf(c.Letters, c.Text), c.Expected) << c.Text << " in " << c.Letters;
    }
}

TEST(TextRectComp, AWrappedTextIsAsWideAsItsWidestLineAndAsHighAsAllLines) {
    TextRectComp rects;
    TextInfo single = Wrapped(0);
    single.SetMultiLine(false);
    const TextRectComp::Rect five = rects(single, "three");
    for (const char* const text : {"one two three", "three one two", "three one two\\Pa"}) {
        for (const auto justification : {TextInfo::BOTTOM_LEFT, TextInfo::BASELINE_LEFT}) {
            TextInfo ti = Wrapped(6.5);
            ti.SetJustification(justification);  // the baseline takes nothing off wrapped lines
            const TextRectComp::Rect rect = rects(ti, text);
            EXPECT_EQ(rect.width, five.width) << text;
            EXPECT_EQ(rect.height, rects.GetNumberOfSubStrings() * five.height) << text;
            EXPECT_EQ(rects.GetTextHeight(), five.height);
        }
    }
}

TEST(TextRectComp, ResultsAreTheSameUnderAnotherLocaleAndOnAnotherThread) {
    const TextInfo ti = Style("Liberation Sans", 2.5F);
    const double expected = WidthOf(ti, "10,5 m");
    EXPECT_EQ(std::async(std::launch::async, WidthOf, ti, "10,5 m").get(), expected);
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool changed = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    EXPECT_EQ(WidthOf(ti, "10,5 m"), expected);
    std::setlocale(LC_ALL, before.c_str());
    if (!changed) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
}

}  // namespace
