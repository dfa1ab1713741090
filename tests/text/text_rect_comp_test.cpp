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

// A monospaced style that is wrapped to so many characters, and a little.
TextInfo Wrapped(double characters) {
    TextRectComp rects;
    TextInfo ti = Style("Liberation Mono", 2.5F);
    ti.SetRectWidth(static_cast<float>(rects(ti, "x").width * characters));
    ti.SetMultiLine(true);
    return ti;
}

std::vector<std::string> LinesOf(double characters, const std::string& text) {
    TextRectComp rects;
    static_cast<void>(rects(Wrapped(characters), text));
    std::vector<std::string> lines;
    for (int i = 0; i < rects.GetNumberOfSubStrings(); ++i) {
        lines.push_back(rects.GetSubString(i));
    }
    return lines;
}

TEST(TextRectComp, SizesAgreeWithTheTablesOfTheFontWithinOneLogicalUnit) {
    const struct {
        const char* Font;
        int Style;
    } cases[] = {{"Liberation Sans", 0},
                 {"Liberation Mono", TextInfo::BOLD},
                 {"DejaVu Serif", TextInfo::BOLD | TextInfo::ITALIC}};
    for (const auto& c : cases) {
        PLATFORM::FontMatch match;
        ASSERT_TRUE(PLATFORM::FontCatalog::Find(c.Font, (c.Style & TextInfo::BOLD) != 0 ? 700 : 400,
                                                (c.Style & TextInfo::ITALIC) != 0, match));
        const FontTables tables(match.Path);
        const TextInfo ti = Style(c.Font, 2.5F, c.Style);
        const double factor = TextHeightFactComp::Get()(ti);
        const double height = std::ceil(2.5 * factor * 1000.0);
        for (const std::string text : {"x", "Depth 12.5 m", "AVAVA\xC4\xE9"}) {
            int units = 0;
            for (const char character : text) {
                units += tables.Advance(static_cast<unsigned char>(character));
            }
            TextRectComp rects;
            const TextRectComp::Rect rect = rects(ti, text);
            EXPECT_NEAR(rect.width * 1000.0, units * height / tables.Cell(), 1.0) << text;
            EXPECT_NEAR(rect.height * 1000.0, height, 1.0) << text;
            EXPECT_EQ(rects.GetSubString(0), text);
            EXPECT_DOUBLE_EQ(rects.GetTextHeight(), rect.height);
        }
    }
}

TEST(TextRectComp, PutsTheJustifiedPointOnTheOriginAtEveryRotation) {
    // In shares of width and height from corner 0, for the twelve justifications and a wrong one.
    const double across[] = {0, 0.5, 1, 1, 1, 0.5, 0, 0, 0.5, 0, 0.5, 1, 0};
    const double up[] = {0, 0, 0, 0.5, 1, 1, 1, 0.5, 0.5, 0, 0, 0, 0};
    TextRectComp rects;
    for (int justification = 0; justification <= 12; ++justification) {
        for (const double degrees : {0.0, 30.0, 90.0, 200.25, 359.9}) {
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
        }
    }
}

TEST(TextRectComp, ABaselineBoxIsLowerByDescentAndInternalLeading) {
    TextRectComp rects;
    TextInfo ti = Style("Liberation Sans", 2.5F);
    const TextRectComp::Rect cell = rects(ti, "Sounding");
    ti.SetJustification(TextInfo::BASELINE_CENTER);
    const TextRectComp::Rect box = rects(ti, "Sounding");
    EXPECT_EQ(box.width, cell.width);
    // (262 + 471) units of 2500, in a font of ceil(2500 * 2500 / 1694) units.
    EXPECT_NEAR(cell.height - box.height, 733 * 3690 / 2500 / 1000.0, 1e-9);
    EXPECT_DOUBLE_EQ(rects.GetTextHeight(), box.height);
}

TEST(TextRectComp, AnEmptyTextLeavesLinesAndHeightAndAllOverloadsAgree) {
    TextRectComp rects;
    EXPECT_EQ(rects.GetNumberOfSubStrings(), 0);
    EXPECT_EQ(rects.GetTextHeight(), 0.0);
    const TextInfo ti;
    const double width = rects(ti, "abc").width;
    EXPECT_EQ(rects(ti, std::string("abc")).width, width);
    EXPECT_EQ(rects(ti, "abc", 5.0).width, width);
    EXPECT_EQ(rects(ti, std::string("abc"), -1.0).points, rects(ti, "abc").points);
    const double height = rects.GetTextHeight();
    EXPECT_EQ(rects(ti, "").width, 0.0);
    EXPECT_EQ(rects(ti, static_cast<const char*>(nullptr)).height, 0.0);
    EXPECT_EQ(rects.GetTextHeight(), height);
    std::string line = "kept";
    EXPECT_FALSE(rects.GetSubString(1, line));
    EXPECT_FALSE(rects.GetSubString(-1, line));
    EXPECT_EQ(line, "kept");
    EXPECT_TRUE(rects.GetSubString(0, line));
    EXPECT_EQ(line, "abc");
    EXPECT_EQ(rects.GetSubString(1), "");
}

TEST(TextRectComp, AStyleThatCannotBeMeasuredHasNoSize) {
    TextRectComp rects;
    for (const float size : {0.0F, std::nanf(""), 1e30F}) {
        TextInfo ti = Style("Arial", size);
        EXPECT_EQ(rects(ti, "abc").width, 0.0) << size;
        ti.SetMultiLine(true);
        EXPECT_EQ(rects(ti, "abc").height, 0.0) << size;
        EXPECT_EQ(rects.GetNumberOfSubStrings(), 0);
    }
}

TEST(TextRectComp, WrapsBehindSpacesAndHyphens) {
    const struct {
        double Characters;
        const char* Text;
        std::vector<std::string> Expected;
    } cases[] = {
        {10.5, "short", {"short"}},
        {8.5, "one two three", {"one two", "three"}},
        {7.5, "one two three", {"one", "two", "three"}},  // "two " with its space is too wide
        {6.5, "sea-floor", {"sea-", "floor"}},
        {5.5, "a  b   c    d", {"a  b", "c", "d"}},
        {4.5, "   ab cd", {"", "ab", "cd"}},
        {4.5, "ab cdefghijk", {"ab", "cdef", "ghij", "k"}},
        {4.5, "abcdef gh", {"abcd", "ef", "gh"}},
        {4.5, "abcdef-gh", {"abcd", "ef-", "gh"}},
        {0.0, "abc", {"a", "b", "c"}},
        {0.5, "a-b", {"a", "-", "b"}},
        {9.5, "ab\\P", {"ab", ""}},
        {9.5, "\\Pab", {"", "ab"}},
        {9.5, "a\\P\\Pb", {"a", "", "b"}},
        {9.5, "a\\P\\P", {"a", "", ""}},
        {9.5, "a\\pb\\", {"a\\pb\\"}}};
    for (const auto& c : cases) {
        EXPECT_EQ(LinesOf(c.Characters, c.Text), c.Expected) << c.Text << " in " << c.Characters;
    }
}

// Two letters with accents, a Greek one, and the euro sign: 2, 2, 2 and 3 bytes of UTF-8.
TEST(TextRectComp, BreaksBetweenTheCharactersOfUtf8) {
    EXPECT_EQ(LinesOf(2.5, "\xC3\xA9\xC3\xA8\xCE\xA9\xE2\x82\xAC!"),
              (std::vector<std::string>{"\xC3\xA9\xC3\xA8", "\xCE\xA9\xE2\x82\xAC", "!"}));
    EXPECT_EQ(LinesOf(0.0, "\xE2\x82\xAC\xC3\xA9"),
              (std::vector<std::string>{"\xE2\x82\xAC", "\xC3\xA9"}));
    // A byte that is not UTF-8 makes each byte a character.
    EXPECT_EQ(LinesOf(2.5, "\xC3\xA9\xC3\xA9\xE9"),
              (std::vector<std::string>{"\xC3\xA9", "\xC3\xA9", "\xE9"}));
    EXPECT_EQ(LinesOf(1.0, "\xC3\xA9\xE9"), (std::vector<std::string>{"\xC3", "\xA9", "\xE9"}));
}

TEST(TextRectComp, AWrappedTextIsAsWideAsItsWidestLineAndAsHighAsAllLines) {
    TextRectComp rects;
    TextInfo single = Wrapped(0);
    single.SetMultiLine(false);
    const TextRectComp::Rect five = rects(single, "three");
    const TextRectComp::Rect rect = rects(Wrapped(7.5), "one two three");
    EXPECT_NEAR(rect.width, five.width, 1e-9);
    EXPECT_NEAR(rect.height, 3 * five.height, 1e-9);
    EXPECT_NEAR(rects.GetTextHeight(), five.height, 1e-9);
    EXPECT_NEAR(rects(Wrapped(7.5), "A\\P").height, 2 * five.height, 1e-9);
    // The baseline takes nothing off wrapped lines.
    TextInfo baseline = Wrapped(7.5);
    baseline.SetJustification(TextInfo::BASELINE_LEFT);
    EXPECT_EQ(rects(baseline, "one two three").height, rect.height);
}

TEST(TextRectComp, ResultsAreTheSameUnderAnotherLocaleAndOnAnotherThread) {
    const TextInfo ti = Style("Liberation Sans", 2.5F);
    TextRectComp rects;
    const double expected = rects(ti, "10,5 m").width;
    auto elsewhere =
        std::async(std::launch::async, [&] { return TextRectComp()(ti, "10,5 m").width; });
    EXPECT_EQ(elsewhere.get(), expected);
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool changed = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    const double local = rects(ti, "10,5 m").width;
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(local, expected);
    if (!changed) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
}

}  // namespace
