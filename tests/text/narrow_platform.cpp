// SPDX-License-Identifier: MIT
// A program that is the library itself, so that it can choose the platform before the library asks
// for it, which it does once, when it is loaded.
#include <marlin/core/detail/load_order.h>
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <gtest/gtest.h>
#include <text/height_factor.h>
#include <text/style.h>

namespace {

struct NarrowPlatform {
    NarrowPlatform() noexcept { PLATFORM::detail::SetPlatformId(1); }
};
[[maybe_unused,
  gnu::init_priority(MARLINSUITE::detail::LoadStartUp)]] const NarrowPlatform narrowPlatform;

TEST(NarrowPlatform, HasCoarseUnitsInWhichTextIsMeasured) {
    EXPECT_EQ(GDIScaleFactor::Get(), 20.0);
    EXPECT_EQ(GDIScaleFactor::MaxCoord(), 32767U);
    PLATFORM::FontMatch match;
    ASSERT_TRUE(PLATFORM::FontCatalog::Find("Liberation Sans", 400, false, match));
    const FontTables tables(match.Path);
    const TextInfo ti = Style("Liberation Sans", 2.5F);
    const double factor = HeightFactorOf(tables, 2.5F, 20.0);
    EXPECT_NEAR(TextHeightFactComp::Get()(ti), factor, 1e-6);
    // A whole number of units of 1/20.
    TextRectComp rects;
    EXPECT_DOUBLE_EQ(rects(ti, "x").height, std::ceil(2.5 * factor * 20.0) / 20.0);
}

}  // namespace
