// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <text/height_factor.h>
#include <text/style.h>

namespace {

using PLATFORM::FontCatalog;

// A folder without fonts in place of the system's, for the lifetime of a scope.
class NoFonts {
public:
    NoFonts() { FontCatalog::SetFolders({"/nonexistent"}); }
    NoFonts(const NoFonts&) = delete;
    NoFonts& operator=(const NoFonts&) = delete;
    ~NoFonts() { FontCatalog::SetFolders({}); }
};

float Factor(const TextInfo& ti) {
    return TextHeightFactComp::Get()(ti);
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
            const double expected = HeightFactorOf(tables, size);
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

TEST(TextHeightFactComp, MeasuresAnewWhatOtherFontsAreMeasuredWithAndKeepsWhatItHandedOut) {
    TextHeightFactComp& comp = TextHeightFactComp::Get();
    const TextInfo ti = Style("Liberation Serif", 6.0F);
    const float factor = Factor(ti);
    const OUTLINETEXTMETRICA& metrics = comp.GetMetrics(ti);
    TextHeightFactComp copy = comp;
    EXPECT_EQ(copy.GetMetrics(ti).otmDescent, metrics.otmDescent);
    EXPECT_NE(&copy.GetMetrics(ti), &metrics);
    {
        const NoFonts none;
        EXPECT_EQ(Factor(ti) + copy(ti), 0.0F);
        EXPECT_EQ(comp.GetMetrics(ti).otmSize, 0U);
        EXPECT_EQ(comp.GetMetrics(ti).otmTextMetrics.tmHeight, 0);
        comp = TextHeightFactComp(copy);
        EXPECT_EQ(metrics.otmTextMetrics.tmHeight, 6000) << "still readable";
    }
    EXPECT_EQ(Factor(ti), factor) << "tried again";
}

TEST(TextHeightFactComp, RefusesSizesThatCannotBeMeasured) {
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float size : {0.0F, 0.0009F, 2147484.0F, 1e30F, infinity, std::nanf("")}) {
        EXPECT_EQ(Factor(Style("Liberation Sans", size)), 0.0F) << size;
    }
}

}  // namespace
