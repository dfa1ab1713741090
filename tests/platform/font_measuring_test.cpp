// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/fonts/text_outline.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <support/font_tables.h>
#include <support/measured_font.h>

namespace {

using namespace PLATFORM;
using Face = std::tuple<std::string, int, bool>;

const Face Faces[] = {{"Liberation Sans", 400, false},
                      {"DejaVu Serif", 700, true},
                      {"Liberation Mono", 400, false},
                      {"DejaVu Sans Mono", 700, false}};

FontMatch MatchOf(const Face& face) {
    const auto& [name, weight, italic] = face;
    FontMatch match;
    EXPECT_TRUE(FontCatalog::Find(name.c_str(), weight, italic, match));
    return match;
}

TextOutline OutlineOf(const std::string& text) {
    MeasuredFont font("Liberation Sans", 2500);
    TextOutline outline;
    EXPECT_TRUE(GetTextOutline(font.DC(), text.data(), static_cast<int>(text.size()), outline));
    return outline;
}

// Left, bottom, right, top.
std::array<double, 4> BoxOf(const TextOutline& outline) {
    std::array<double, 4> box{1e9, 1e9, -1e9, -1e9};
    for (const auto& [kind, to, control1, control2] : outline.Steps) {
        box = {std::min(box[0], to.X), std::min(box[1], to.Y), std::max(box[2], to.X),
               std::max(box[3], to.Y)};
    }
    return box;
}

int Scaled(double units, double logical, double design) {
    return static_cast<int>(std::lround(units * logical / design));
}

class FontOfFace : public testing::TestWithParam<Face> {
protected:
    void SetUp() override {
        const auto& [name, weight, italic] = GetParam();
        EXPECT_EQ(m_Match.Family, name);
        EXPECT_FALSE(m_Match.Substituted);
        EXPECT_EQ(m_Tables.Weight(), weight);
        EXPECT_EQ(m_Tables.Italic(), italic);
    }
    [[nodiscard]] static MeasuredFont Font(int height) {
        const auto& [name, weight, italic] = GetParam();
        return {name.c_str(), height, weight, italic};
    }

    const FontMatch m_Match = MatchOf(GetParam());
    const FontTables m_Tables{m_Match.Path};
    const int m_Cell = m_Tables.Cell();
    const int m_Em = m_Tables.UnitsPerEm();
};

TEST_P(FontOfFace, MeasuresTheSumOfTheAdvances) {
    for (const int height : {1, 37, 423, 2500, 123456}) {
        for (const std::string text : {"", "A", "AVAVA To.", "12.75", "iiiiiiiiiiiiiiiiiiii",
                                       "The quick brown fox jumps over the lazy dog, 0123456789"}) {
            double sum = 0;
            for (const char c : text) {
                sum += m_Tables.Advance(static_cast<unsigned char>(c));
            }
            const CSize expected(Scaled(sum, height, m_Cell), height);
            EXPECT_EQ(Font(height).Extent(text), expected) << text << " at " << height;
        }
    }
    // Bytes are characters of Windows-1252, and 0 is none.
    for (const auto& [byte, character] :
         {std::pair{'\x80', 0x20ACU}, {'\xFF', 0xFFU}, {'\0', 0xFFFFU}}) {
        const int width = Scaled(m_Tables.Advance(character), 100000, m_Cell);
        EXPECT_EQ(Font(100000).Extent({&byte, 1}).cx, width) << character;
    }
}

// The last two: a letter outside Windows-1252, and a byte that makes the whole text Windows-1252.
TEST_P(FontOfFace, MeasuresTheCharactersOfUtf8) {
    const std::pair<const char*, std::vector<unsigned int>> cases[] = {
        {"\xC3\xA9", {0xE9}},
        {"\xE2\x82\xAC"
         "5",
         {0x20AC, '5'}},
        {"\xC2\x80", {0x80}},
        {"\xCE\xA9m", {0x3A9, 'm'}},
        {"\xC3\xA9\xE9", {0xC3, 0xA9, 0xE9}},
    };
    for (const auto& [text, characters] : cases) {
        double sum = 0;
        for (const unsigned int character : characters) {
            sum += m_Tables.Advance(character);
        }
        EXPECT_EQ(Font(100000).Extent(text).cx, Scaled(sum, 100000, m_Cell)) << text;
    }
}

TEST_P(FontOfFace, HasTheMetricsOfItsCell) {
    const FontTables& t = m_Tables;
    for (const int h : {100, 423, 2500, 30000}) {
        const OUTLINETEXTMETRICA otm = Font(h).Metrics();
        const TEXTMETRICA& tm = otm.otmTextMetrics;
        EXPECT_EQ(tm.tmHeight, h);
        EXPECT_EQ(tm.tmAscent, Scaled(t.WinAscent(), h, m_Cell));
        EXPECT_EQ(tm.tmDescent, h - tm.tmAscent);
        EXPECT_EQ(tm.tmInternalLeading, h - Scaled(m_Em, h, m_Cell));
        const int line = t.HheaAscender() - t.HheaDescender();
        const int leading = std::max(0, t.HheaLineGap() - (m_Cell - line));
        EXPECT_EQ(tm.tmExternalLeading, Scaled(leading, h, m_Cell));
        EXPECT_EQ(otm.otmAscent, Scaled(t.TypoAscender(), h, m_Cell));
        EXPECT_EQ(otm.otmDescent, Scaled(t.TypoDescender(), h, m_Cell));
        EXPECT_EQ(static_cast<int>(otm.otmLineGap), Scaled(t.TypoLineGap(), h, m_Cell));
        EXPECT_EQ(static_cast<int>(otm.otmEMSquare), m_Em);
    }
}

TEST_P(FontOfFace, TakesANegativeHeightForThatOfTheEmSquare) {
    const TEXTMETRICA tm = Font(-1000).Metrics().otmTextMetrics;
    EXPECT_EQ(tm.tmHeight, Scaled(m_Cell, 1000, m_Em));
    EXPECT_EQ(tm.tmHeight - tm.tmInternalLeading, 1000);
    EXPECT_EQ(Font(-1000).Extent("MM").cx, Scaled(2 * m_Tables.Advance('M'), 1000, m_Em));
}

INSTANTIATE_TEST_SUITE_P(Installed, FontOfFace, testing::ValuesIn(Faces));

TEST(TextOutline, PutsTheBoxesOfTheFontsGlyphsAtTheirAdvances) {
    const FontTables tables(MatchOf(Faces[0]).Path);
    for (const char c : {'H', 'o', 'g', '8', 'E'}) {
        const auto character = static_cast<unsigned char>(c);
        for (std::size_t side = 0; side < 4; ++side) {
            EXPECT_EQ(BoxOf(OutlineOf({c}))[side], tables.Box(character, side)) << c << side;
        }
        EXPECT_EQ(OutlineOf({c}).Advance, tables.Advance(character)) << c;
    }
    const TextOutline text = OutlineOf("A H");
    const int start = tables.Advance('A') + tables.Advance(' ');
    EXPECT_EQ(text.Advance, start + tables.Advance('H'));
    EXPECT_EQ(BoxOf(text)[2], start + tables.Box('H', 2));
    const int width = MeasuredFont("Liberation Sans", 2500).Extent("A H").cx;
    EXPECT_NEAR(text.Advance * text.Scale, width, 0.5);
    EXPECT_NEAR((text.Ascent + text.Descent) * text.Scale, 2500, 1e-9);
    EXPECT_TRUE(OutlineOf("   ").Steps.empty());
    EXPECT_EQ(BoxOf(OutlineOf("\xCE\xA9"))[3], tables.Box(0x3A9, 3));
    EXPECT_EQ(OutlineOf("\xCE\xA9").Advance, tables.Advance(0x3A9));
    // The outside and two holes, a move each.
    const std::vector<OutlineStep> steps = OutlineOf("B").Steps;
    EXPECT_EQ(steps.front().Kind, OutlineStep::MOVE);
    EXPECT_EQ(std::ranges::count(steps, OutlineStep::MOVE, &OutlineStep::Kind), 3);
    EXPECT_GT(std::ranges::count(steps, OutlineStep::CONIC, &OutlineStep::Kind), 4);
}

TEST(FontMeasuring, GivesTheKnownMetricsOfArial) {
    const OUTLINETEXTMETRICA otm = MeasuredFont("Arial", 2500).Metrics();
    EXPECT_EQ(otm.otmTextMetrics.tmInternalLeading, 262);
    EXPECT_EQ(otm.otmTextMetrics.tmExternalLeading, 73);
    EXPECT_EQ(otm.otmDescent, -471);
}

TEST(FontMeasuring, MetricsFillBuffersThatAreLargeEnough) {
    MeasuredFont font("Liberation Sans", 100);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(0, nullptr), 212U);
    OUTLINETEXTMETRICA metrics;
    metrics.otmSize = 77;
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(211, &metrics), 0U);
    EXPECT_EQ(metrics.otmSize, 77U);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(1000, &metrics), 212U);
    EXPECT_EQ(metrics.otmSize, 212U);
}

TEST(FontMeasuring, HeightsAreThoseOfTheMappingUpToTheLargest) {
    const auto extent = [](int height, const char* text, int mapMode = MM_HIMETRIC) {
        return MeasuredFont("Arial", height, 400, false, mapMode).Extent(text);
    };
    EXPECT_EQ(extent(2500, "Sounding", MM_TEXT), extent(2500, "Sounding"));
    // 0 asks for twelve points: a sixth of 96 pixels, or of 2540 hundredths of a millimetre.
    EXPECT_EQ(extent(0, "A", MM_TEXT).cy, 16);
    EXPECT_EQ(extent(0, "A").cy, 423);
    const int most = std::numeric_limits<int>::max();
    EXPECT_EQ(extent(most, "MMMM"), CSize(most, most));
    EXPECT_EQ(extent(-most - 1, "MMMM"), CSize(most, most));
}

TEST(FontMeasuring, TheSecondTimeTouchesNoFileAndAsksNobody) {
    const CSize first = MeasuredFont("DejaVu Serif", 900, 700, true).Extent("Depth");
    const FontCosts before = FontCatalog::Costs();
    EXPECT_EQ(MeasuredFont("DejaVu Serif", 900, 700, true).Extent("Depth"), first);
    EXPECT_GT(MeasuredFont("DejaVu Serif", 50, 700, true).Metrics().otmTextMetrics.tmHeight, 0);
    EXPECT_EQ(FontCatalog::Costs().Queries, before.Queries);
    // Another name of the face is asked for, but shares its file.
    EXPECT_EQ(MeasuredFont("DEJAVU serif", 900, 700, true).Extent("Depth"), first);
    EXPECT_EQ(FontCatalog::Costs().FileOpens, before.FileOpens);
}

TEST(FontMeasuring, GivesTheSameOnEveryThreadAndUnderEveryLocale) {
    const CSize expected = MeasuredFont("Arial", 2500).Extent("Depth 12.5 m");
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([expected] {
            for (int i = 0; i < 500; ++i) {
                ASSERT_EQ(MeasuredFont("Arial", 2500).Extent("Depth 12.5 m"), expected);
                ASSERT_EQ(MeasuredFont("DejaVu Sans", 300 + i).Extent("x").cy, 300 + i);
            }
        });
    }
    threads.clear();
    for (const char* locale : {"de_DE.UTF-8", "tr_TR.UTF-8", "ja_JP.UTF-8", "C"}) {
        if (std::setlocale(LC_ALL, locale)) {
            FontCatalog::SetFolders({});
            EXPECT_EQ(MeasuredFont("Arial", 2500).Extent("Depth 12.5 m"), expected) << locale;
        }
    }
}

}  // namespace
