// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/font_tables.h>
#include <text/style.h>

namespace {

using PLATFORM::FontCatalog;

// A folder without fonts in place of the system's, for the lifetime of a scope.
class NoFonts {
public:
    NoFonts() { FontCatalog::SetFolders({"/nonexistent"}); }
    NoFonts(const NoFonts&) = delete;
    NoFonts& operator=(const NoFonts&) = delete;
    ~NoFonts() { FontCatalog::UseSystemFonts(); }
};

float Factor(const TextInfo& ti) {
    return TextHeightFactComp::Get()(ti);
}

// The factor from the font's own tables: each part of the cell scaled to whole units.
double FactorOf(const FontTables& t, float size, double scale = 1000.0) {
    const int h = static_cast<int>(size * scale);
    const auto scaled = [&](int units) {
        return std::lround(static_cast<double>(units) * h / t.Cell());
    };
    const int line = t.HheaAscender() - t.HheaDescender();
    const long external = scaled(std::max(0, t.HheaLineGap() - (t.Cell() - line)));
    const long internal = h - scaled(t.UnitsPerEm());
    const long hidden = std::labs(scaled(t.TypoDescender())) + external + internal;
    return size / (static_cast<double>(h - hidden) / scale);
}

TEST(TextHeightFactComp, GivesTheKnownFactorOfArial) {
    const TextInfo ti;
    // 2500 / (2500 - 471 - 73 - 262)
    EXPECT_NEAR(Factor(ti), 2500.0 / 1694.0, 1e-6);
    const OUTLINETEXTMETRICA& metrics = TextHeightFactComp::Get().GetMetrics(ti);
    EXPECT_EQ(metrics.otmTextMetrics.tmHeight, 2500);
    EXPECT_EQ(metrics.otmpFaceName, 0U);
}

TEST(TextHeightFactComp, AgreesWithTheTablesOfTheFont) {
    for (const char* face : {"Liberation Sans", "DejaVu Serif", "Liberation Mono", "DejaVu Sans"}) {
        PLATFORM::FontMatch match;
        ASSERT_TRUE(FontCatalog::Find(face, 400, false, match));
        ASSERT_EQ(match.Family, face);
        const FontTables tables(match.Path);
        for (const float size : {0.05F, 1.0F, 2.5F, 33.3F, 400.0F, 100000.0F}) {
            const double expected = FactorOf(tables, size);
            EXPECT_NEAR(Factor(Style(face, size)), expected, 1e-6 * expected) << face << size;
            EXPECT_GT(Factor(Style(face, size)), 1.0F);
        }
    }
}

TEST(TextHeightFactComp, SharesTheEntriesOfOneFontSizeAndStyleMeasuredUprightAndLight) {
    TextHeightFactComp& comp = TextHeightFactComp::Get();
    const TextInfo ti = Style("Liberation Mono", 4.0F);
    const TextInfo bold = Style("Liberation Mono", 4.0F, TextInfo::BOLD);
    const OUTLINETEXTMETRICA* metrics = &comp.GetMetrics(ti);
    TextInfo other = Style("LIBERATION mono", 4.0F);
    other.SetJustification(TextInfo::TOP_CENTER);
    other.SetRotation(30.0);
    other.SetColor(0xFF);
    EXPECT_EQ(&comp.GetMetrics(other), metrics);
    EXPECT_NE(&comp.GetMetrics(Style("Liberation Mono", 4.5F)), metrics);
    EXPECT_NE(&comp.GetMetrics(bold), metrics);
    EXPECT_EQ(&comp.GetMetrics(ti), metrics);
    EXPECT_EQ(comp.GetMetrics(bold).otmTextMetrics.tmWeight, 400) << "all are measured light";
    const float plain = comp(Style("DejaVu Serif", 3.0F));
    EXPECT_EQ(comp(Style("DejaVu Serif", 3.0F, TextInfo::BOLD | TextInfo::ITALIC)), plain);
}

TEST(TextHeightFactComp, MeasuresAStyleOnceAndTriesAgainWithoutMetrics) {
    const TextInfo ti = Style("Liberation Serif", 6.0F);
    const TextInfo later = Style("Liberation Sans", 7.25F);
    const float factor = Factor(ti);
    ASSERT_GT(factor, 1.0F);
    TextHeightFactComp copy = TextHeightFactComp::Get();
    {
        const NoFonts none;
        EXPECT_EQ(Factor(ti), factor);
        EXPECT_EQ(Factor(Style("liberation SERIF", 6.0F)), factor);
        EXPECT_EQ(copy(ti), factor);
        EXPECT_NE(&copy.GetMetrics(ti), &TextHeightFactComp::Get().GetMetrics(ti));
        EXPECT_EQ(Factor(later), 0.0F);
        const OUTLINETEXTMETRICA& metrics = TextHeightFactComp::Get().GetMetrics(later);
        EXPECT_EQ(metrics.otmSize, 0U);
        EXPECT_EQ(metrics.otmTextMetrics.tmHeight, 0);
    }
    EXPECT_GT(Factor(later), 1.0F);
    EXPECT_EQ(TextHeightFactComp::Get().GetMetrics(later).otmTextMetrics.tmHeight, 7250);
}

TEST(TextHeightFactComp, RefusesSizesThatCannotBeMeasured) {
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float size : {0.0F, 0.0009F, 2147484.0F, 1e30F, infinity, std::nanf("")}) {
        EXPECT_EQ(Factor(Style("Liberation Sans", size)), 0.0F) << size;
    }
}

TEST(TextHeightFactComp, LeavesNoDrawingObjectBehind) {
    const std::size_t before = PLATFORM::LiveDrawingObjects();
    for (int i = 1; i <= 200; ++i) {
        ASSERT_GT(Factor(Style("Arial", 10.0F + static_cast<float>(i) / 8)), 1.0F);
    }
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before);
}

// A program that is started anew loads the library anew.
TEST(TextHeightFactComp, MeasuresInCoarseUnitsOnAPlatformOfNarrowCoordinates) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    PLATFORM::detail::SetPlatformId(1);
    EXPECT_EXIT(
        {
            PLATFORM::FontMatch match;
            const bool found = FontCatalog::Find("Liberation Sans", 400, false, match);
            const double expected = FactorOf(FontTables(match.Path), 2.5F, 20.0);
            const double factor = Factor(Style("Liberation Sans", 2.5F));
            std::exit(found && std::fabs(factor - expected) < 1e-6 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    PLATFORM::detail::SetPlatformId(2);
}

}  // namespace
