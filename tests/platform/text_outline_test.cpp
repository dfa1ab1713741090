// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/font_catalog.h>
#include <marlin/platform/drawing/text_outline.h>

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>
#include <support/font_tables.h>
#include <support/measured_font.h>

namespace {

using PLATFORM::OutlineStep;
using PLATFORM::TextOutline;

FontTables SansTables() {
    PLATFORM::FontMatch match;
    EXPECT_TRUE(PLATFORM::FontCatalog::Find("Liberation Sans", 400, false, match));
    return FontTables(match.Path);
}

TextOutline OutlineOf(std::string_view text) {
    MeasuredFont font("Liberation Sans", 2500);
    TextOutline outline;
    EXPECT_TRUE(GetTextOutline(font.DC(), text.data(), static_cast<int>(text.size()), outline));
    return outline;
}

double Bound(const TextOutline& outline, double PLATFORM::OutlinePoint::*axis, bool largest) {
    const auto order = [&](const OutlineStep& a, const OutlineStep& b) {
        return a.To.*axis < b.To.*axis;
    };
    const auto [low, high] = std::minmax_element(outline.Steps.begin(), outline.Steps.end(), order);
    return (largest ? high : low)->To.*axis;
}

TEST(TextOutline, HasTheBoxThatTheFontTells) {
    const FontTables tables = SansTables();
    using PLATFORM::OutlinePoint;
    for (const char c : {'H', 'o', 'g', '8', 'E'}) {
        const TextOutline outline = OutlineOf(std::string_view(&c, 1));
        const auto character = static_cast<unsigned char>(c);
        EXPECT_EQ(Bound(outline, &OutlinePoint::X, false), tables.Box(character, 0)) << c;
        EXPECT_EQ(Bound(outline, &OutlinePoint::Y, false), tables.Box(character, 1)) << c;
        EXPECT_EQ(Bound(outline, &OutlinePoint::X, true), tables.Box(character, 2)) << c;
        EXPECT_EQ(Bound(outline, &OutlinePoint::Y, true), tables.Box(character, 3)) << c;
        EXPECT_EQ(outline.Advance, tables.Advance(character)) << c;
    }
}

TEST(TextOutline, GlyphsFollowEachOtherByTheirAdvances) {
    const FontTables tables = SansTables();
    const TextOutline outline = OutlineOf("A H");
    EXPECT_EQ(outline.Advance, tables.Advance('A') + tables.Advance(' ') + tables.Advance('H'));
    EXPECT_EQ(Bound(outline, &PLATFORM::OutlinePoint::X, true),
              tables.Advance('A') + tables.Advance(' ') + tables.Box('H', 2));
}

TEST(TextOutline, ScalesToTheMeasuredExtent) {
    const TextOutline outline = OutlineOf("Sounding 12.5");
    const CSize size = MeasuredFont("Liberation Sans", 2500).Extent("Sounding 12.5");
    EXPECT_NEAR(outline.Advance * outline.Scale, size.cx, 0.5);
    EXPECT_NEAR((outline.Ascent + outline.Descent) * outline.Scale, size.cy, 1e-9);
}

TEST(TextOutline, BeginsEachContourWithAMove) {
    const TextOutline outline = OutlineOf("B");
    ASSERT_FALSE(outline.Steps.empty());
    EXPECT_EQ(outline.Steps.front().Kind, OutlineStep::MOVE);
    // The outside and two holes.
    EXPECT_EQ(std::ranges::count(outline.Steps, OutlineStep::MOVE, &OutlineStep::Kind), 3);
    EXPECT_GT(std::ranges::count(outline.Steps, OutlineStep::CONIC, &OutlineStep::Kind), 4);
}

TEST(TextOutline, OfNothingIsEmpty) {
    EXPECT_TRUE(OutlineOf("").Steps.empty());
    EXPECT_TRUE(OutlineOf("   ").Steps.empty());
    EXPECT_GT(OutlineOf("   ").Advance, 0);
}

}  // namespace
