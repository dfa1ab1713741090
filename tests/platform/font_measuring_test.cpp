// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/font_catalog.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <clocale>
#include <cmath>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <support/font_tables.h>
#include <support/measured_font.h>

namespace {

using PLATFORM::FontCatalog;
using PLATFORM::FontMatch;

struct Face {
    const char* Name;
    int Weight;
    bool Italic;

    friend std::ostream& operator<<(std::ostream& stream, const Face& face) {
        return stream << face.Name << ' ' << face.Weight << (face.Italic ? " italic" : "");
    }
};

constexpr Face Faces[] = {{"Liberation Sans", 400, false},
                          {"DejaVu Serif", 700, true},
                          {"Liberation Mono", 400, false},
                          {"DejaVu Sans Mono", 700, false}};

class FontOfFace : public testing::TestWithParam<Face> {
protected:
    void SetUp() override {
        const Face& face = GetParam();
        ASSERT_TRUE(FontCatalog::Find(face.Name, face.Weight, face.Italic, m_Match));
        ASSERT_EQ(m_Match.Family, face.Name);
        ASSERT_FALSE(m_Match.Substituted);
    }
    [[nodiscard]] FontTables Tables() const { return FontTables(m_Match.Path); }
    [[nodiscard]] static MeasuredFont Font(int height) {
        return {GetParam().Name, height, GetParam().Weight, GetParam().Italic};
    }

    FontMatch m_Match;
};

int Scaled(double units, double logical, double design) {
    return static_cast<int>(std::lround(units * logical / design));
}

TEST_P(FontOfFace, IsTheOneThatWasAsked) {
    const FontTables tables = Tables();
    EXPECT_EQ(tables.Weight(), GetParam().Weight);
    EXPECT_EQ(tables.Italic(), GetParam().Italic);
}

TEST_P(FontOfFace, MeasuresTheSumOfTheAdvances) {
    const FontTables tables = Tables();
    const std::string texts[] = {"",
                                 "A",
                                 "AVAVA To.",
                                 "12.75",
                                 "iiiiiiiiiiiiiiiiiiii",
                                 "The quick brown fox jumps over the lazy dog, 0123456789"};
    for (const int height : {1, 37, 423, 2500, 123456}) {
        for (const std::string& text : texts) {
            double sum = 0;
            for (const char c : text) {
                sum += tables.Advance(static_cast<unsigned char>(c));
            }
            const CSize expected(Scaled(sum, height, tables.Cell()), height);
            EXPECT_EQ(Font(height).Extent(text), expected) << text << " at " << height;
        }
    }
}

TEST_P(FontOfFace, TakesBytesForWindows1252) {
    const FontTables tables = Tables();
    const MeasuredFont font = Font(100000);
    const std::pair<char, unsigned int> characters[] = {
        {'\x80', 0x20AC}, {'\x85', 0x2026}, {'\x99', 0x2122}, {'\xA9', 0xA9},
        {'\xD6', 0xD6},   {'\xFF', 0xFF},   {'\x9F', 0x178},  {'\0', 0xFFFF}};
    for (const auto& [byte, character] : characters) {
        const int width = Scaled(tables.Advance(character), 100000, tables.Cell());
        EXPECT_EQ(font.Extent(std::string_view(&byte, 1)).cx, width) << character;
    }
}

TEST_P(FontOfFace, TellsTheMetricsOfItsCell) {
    const FontTables t = Tables();
    for (const int h : {100, 423, 2500, 30000}) {
        const OUTLINETEXTMETRICA otm = Font(h).Metrics();
        const TEXTMETRICA& tm = otm.otmTextMetrics;
        const double cell = t.Cell();
        EXPECT_EQ(tm.tmHeight, h);
        EXPECT_EQ(tm.tmAscent, Scaled(t.WinAscent(), h, cell));
        EXPECT_EQ(tm.tmDescent, h - tm.tmAscent);
        EXPECT_EQ(tm.tmInternalLeading, h - Scaled(t.UnitsPerEm(), h, cell));
        const int line = t.HheaAscender() - t.HheaDescender();
        const int leading = std::max(0, t.HheaLineGap() - (t.Cell() - line));
        EXPECT_EQ(tm.tmExternalLeading, Scaled(leading, h, cell));
        EXPECT_EQ(otm.otmAscent, Scaled(t.TypoAscender(), h, cell));
        EXPECT_EQ(otm.otmDescent, Scaled(t.TypoDescender(), h, cell));
        EXPECT_EQ(static_cast<int>(otm.otmLineGap), Scaled(t.TypoLineGap(), h, cell));
        EXPECT_EQ(static_cast<int>(otm.otmEMSquare), t.UnitsPerEm());
    }
}

TEST_P(FontOfFace, TakesANegativeHeightForThatOfTheEmSquare) {
    const FontTables t = Tables();
    const TEXTMETRICA tm = Font(-1000).Metrics().otmTextMetrics;
    EXPECT_EQ(tm.tmHeight, Scaled(t.Cell(), 1000, t.UnitsPerEm()));
    EXPECT_EQ(tm.tmHeight - tm.tmInternalLeading, 1000);
    EXPECT_EQ(Font(-1000).Extent("MM").cx, Scaled(2 * t.Advance('M'), 1000, t.UnitsPerEm()));
}

INSTANTIATE_TEST_SUITE_P(Installed, FontOfFace, testing::ValuesIn(Faces));

TEST(FontMeasuring, GivesTheKnownMetricsOfArial) {
    const OUTLINETEXTMETRICA otm = MeasuredFont("Arial", 2500).Metrics();
    EXPECT_EQ(otm.otmTextMetrics.tmHeight, 2500);
    EXPECT_EQ(otm.otmTextMetrics.tmHeight - otm.otmTextMetrics.tmInternalLeading, 2238);
    EXPECT_EQ(otm.otmTextMetrics.tmInternalLeading, 262);
    EXPECT_EQ(otm.otmTextMetrics.tmExternalLeading, 73);
    EXPECT_EQ(otm.otmDescent, -471);
}

TEST(FontMeasuring, ANullBufferAsksForTheSizeWithTheNames) {
    MeasuredFont font("Liberation Sans", 100);
    const unsigned int size = font.DC().GetOutlineTextMetricsA(0, nullptr);
    // "Liberation Sans" twice, "Regular", "Liberation Sans Regular", each with its end.
    ASSERT_EQ(size, 212U + 16 + 16 + 8 + 24);
    std::vector<OUTLINETEXTMETRICA> buffer(2);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(size, buffer.data()), size);
    const char* bytes = reinterpret_cast<const char*>(buffer.data());
    EXPECT_STREQ(bytes + buffer[0].otmpFamilyName, "Liberation Sans");
    EXPECT_STREQ(bytes + buffer[0].otmpStyleName, "Regular");
    EXPECT_STREQ(bytes + buffer[0].otmpFullName, "Liberation Sans Regular");
}

TEST(FontMeasuring, ABufferWithoutRoomForNamesGetsNone) {
    MeasuredFont font("Liberation Sans", 100);
    std::vector<OUTLINETEXTMETRICA> buffer(2);
    buffer[1].otmSize = 77;
    EXPECT_GT(font.DC().GetOutlineTextMetricsA(212, buffer.data()), 212U);
    EXPECT_EQ(buffer[0].otmTextMetrics.tmHeight, 100);
    EXPECT_EQ(buffer[0].otmpFullName, 0U);
    EXPECT_EQ(buffer[1].otmSize, 77U);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(211, buffer.data() + 1), 0U);
    EXPECT_EQ(buffer[1].otmSize, 77U);
}

TEST(FontMeasuring, AHeightOfZeroAsksForTwelvePoints) {
    EXPECT_EQ(MeasuredFont("Arial", 0, 400, false, MM_TEXT).Extent("A").cy, 16);
    // A sixth of 2540 hundredths of a millimetre.
    EXPECT_EQ(MeasuredFont("Arial", 0, 400, false, MM_HIMETRIC).Extent("A").cy, 423);
}

TEST(FontMeasuring, DoesNotDependOnTheMapping) {
    const CSize expected = MeasuredFont("Arial", 2500).Extent("Sounding");
    EXPECT_EQ(MeasuredFont("Arial", 2500, 400, false, MM_TEXT).Extent("Sounding"), expected);
    EXPECT_EQ(MeasuredFont("Arial", 2500, 400, false, MM_TWIPS).Extent("Sounding"), expected);
}

TEST(FontMeasuring, TheLargestHeightsAreCutAndNotWrapped) {
    const int most = std::numeric_limits<int>::max();
    EXPECT_EQ(MeasuredFont("Arial", most).Extent("MMMM"), CSize(most, most));
    EXPECT_EQ(MeasuredFont("Arial", -most - 1).Extent("MMMM"), CSize(most, most));
}

TEST(FontMeasuring, TheSecondTimeTouchesNoFileAndAsksNobody) {
    const CSize first = MeasuredFont("DejaVu Serif", 900, 700, true).Extent("Depth");
    const PLATFORM::FontCosts before = FontCatalog::Costs();
    EXPECT_GE(before.FileOpens, 1U);
    EXPECT_GE(before.Queries, 1U);
    EXPECT_EQ(MeasuredFont("DejaVu Serif", 900, 700, true).Extent("Depth"), first);
    EXPECT_GT(MeasuredFont("DejaVu Serif", 50, 700, true).Metrics().otmTextMetrics.tmHeight, 0);
    EXPECT_EQ(FontCatalog::Costs().FileOpens, before.FileOpens);
    EXPECT_EQ(FontCatalog::Costs().Queries, before.Queries);
}

TEST(FontMeasuring, NamesOfOneFaceShareItsFile) {
    EXPECT_EQ(MeasuredFont("Liberation Sans", 900).Extent("x").cy, 900);
    const std::size_t opens = FontCatalog::Costs().FileOpens;
    EXPECT_EQ(MeasuredFont("LIBERATION sans", 900).Extent("Depth"),
              MeasuredFont("Liberation Sans", 900).Extent("Depth"));
    EXPECT_EQ(FontCatalog::Costs().FileOpens, opens);
}

TEST(FontMeasuring, LeavesNoObjectBehind) {
    const std::size_t before = PLATFORM::LiveDrawingObjects();
    for (int i = 0; i < 10000; ++i) {
        ASSERT_EQ(MeasuredFont("Arial", 100 + i % 7).Extent("Depth").cy, 100 + i % 7);
    }
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before);
    const MeasuredFont held("Arial", 100);
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before + 2);
}

TEST(FontMeasuring, GivesTheSameOnEveryThreadAndUnderEveryLocale) {
    const CSize expected = MeasuredFont("Arial", 2500).Extent("Depth 12.5 m");
    std::vector<std::thread> threads;
    std::vector<int> wrong(4, 0);
    for (int& count : wrong) {
        threads.emplace_back([&count, expected] {
            for (int i = 0; i < 500; ++i) {
                count += MeasuredFont("Arial", 2500).Extent("Depth 12.5 m") == expected ? 0 : 1;
                count += MeasuredFont("DejaVu Sans", 300 + i).Extent("x").cy == 300 + i ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, std::vector<int>(4, 0));
    for (const char* locale : {"de_DE.UTF-8", "tr_TR.UTF-8", "ja_JP.UTF-8", "C"}) {
        if (std::setlocale(LC_ALL, locale)) {
            FontCatalog::UseSystemFonts();
            EXPECT_EQ(MeasuredFont("Arial", 2500).Extent("Depth 12.5 m"), expected) << locale;
        }
    }
}

TEST(FontCatalog, SaysWhichFaceStandsForAnother) {
    FontMatch match;
    ASSERT_TRUE(FontCatalog::Find("No Such Face At All", 400, false, match));
    EXPECT_TRUE(match.Substituted);
    EXPECT_NE(match.Family, "No Such Face At All");
    EXPECT_GT(FontTables(match.Path).UnitsPerEm(), 0);
    ASSERT_TRUE(FontCatalog::Find("dejavu SERIF", 700, true, match));
    EXPECT_FALSE(match.Substituted);
    EXPECT_EQ(match.Family, "DejaVu Serif");
}

}  // namespace
