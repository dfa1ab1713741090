// SPDX-License-Identifier: MIT
#include <marlin/color/hsv_color.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

template <class Color>
concept IsComparable = requires(Color a, Color b) {
    a == b;
};
static_assert(!IsComparable<HSVColor> && IsComparable<RGBColor>);

TEST(HSVColor, ConvertsFromColors) {
    const struct {
        RGBColor color;
        float hue, saturation, value;
    } cases[] = {
        {{255, 0, 0}, 0.0F, 1.0F, 1.0F},         {{255, 255, 0}, 60.0F, 1.0F, 1.0F},
        {{0, 255, 0}, 120.0F, 1.0F, 1.0F},       {{0, 255, 255}, 180.0F, 1.0F, 1.0F},
        {{0, 0, 255}, 240.0F, 1.0F, 1.0F},       {{255, 0, 255}, 300.0F, 1.0F, 1.0F},
        {{255, 0, 128}, 329.882F, 1.0F, 1.0F},    // 360 - 60 * 128 / 255
        {{51, 102, 51}, 120.0F, 0.5F, 0.4F},      // (102 - 51) / 102, 102 / 255
        {{0, 51, 204}, 225.0F, 1.0F, 0.8F},       // 240 - 60 * 51 / 204
        {{128, 64, 96}, 330.0F, 0.5F, 0.50196F},  // 360 - 60 * 32 / 64
    };
    for (const auto& [color, hue, saturation, value] : cases) {
        const HSVColor hsv(color);
        EXPECT_NEAR(hsv.Hue(), hue, 0.001F);
        EXPECT_NEAR(hsv.Saturation(), saturation, 0.00001F);
        EXPECT_NEAR(hsv.Value(), value, 0.00001F);
    }
}

TEST(HSVColor, HasNoHueForGrays) {
    for (int gray = 0; gray <= 255; ++gray) {
        const HSVColor hsv(RGBColor(gray, gray, gray));
        EXPECT_EQ(hsv.Hue(), HSVColor::UNDEFINED_HUE);
        EXPECT_EQ(hsv.Saturation(), 0.0F);
        EXPECT_FLOAT_EQ(hsv.Value(), static_cast<float>(gray) / 255.0F);
    }
}

// The last cases: a hue without saturation, components beyond their range, of which the low eight
// bits count, and a sextant of -0.5, which truncates to 0 and makes the rising component
// trunc(-0.5 * 255) = -127.
TEST(HSVColor, ConvertsBackBySextants) {
    const struct {
        HSVColor hsv;
        RGBColor color;
    } cases[] = {
        {{0.0F, 1.0F, 1.0F}, {255, 0, 0}},     {{30.0F, 1.0F, 1.0F}, {255, 127, 0}},
        {{90.0F, 1.0F, 1.0F}, {127, 255, 0}},  {{150.0F, 1.0F, 1.0F}, {0, 255, 127}},
        {{210.0F, 1.0F, 1.0F}, {0, 127, 255}}, {{270.0F, 1.0F, 1.0F}, {127, 0, 255}},
        {{330.0F, 1.0F, 1.0F}, {255, 0, 127}}, {{0.0F, 0.5F, 1.0F}, {255, 127, 127}},
        {{120.0F, 0.5F, 0.5F}, {63, 127, 63}}, {{-1.0F, 0.0F, 0.5F}, {127, 127, 127}},
        {{120.0F, 0.0F, 1.0F}, {0, 0, 0}},     {{-1.0F, 0.0F, 2.0F}, {254, 254, 254}},
        {{-1.0F, 0.0F, -1.0F}, {1, 1, 1}},     {{-30.0F, 1.0F, 1.0F}, {255, 129, 0}},
    };
    for (const auto& [hsv, color] : cases) {
        EXPECT_EQ(static_cast<RGBColor>(hsv), color) << hsv.Hue() << ' ' << hsv.Value();
    }
}

TEST(HSVColor, ConvertsThereAndBackWithinTheTruncation) {
    for (int i = 0; i < 18 * 18 * 18; ++i) {
        const RGBColor color(15 * (i % 18), 15 * (i / 18 % 18), 15 * (i / 324));
        const RGBColor back = HSVColor(color);
        EXPECT_LE(std::abs(back.Red() - color.Red()), 1) << i;
        EXPECT_LE(std::abs(back.Green() - color.Green()), 1) << i;
        EXPECT_LE(std::abs(back.Blue() - color.Blue()), 1) << i;
    }
}

TEST(HSVColor, WrapsAHueOfExactly360Alone) {
    for (const float hue : {400.0F, 720.0F, -30.0F, 359.5F, 360.0F}) {
        HSVColor hsv;
        EXPECT_EQ(std::max({hsv.Hue(), hsv.Saturation(), hsv.Value()}), 0.0F);
        hsv.SetHue(hue);
        EXPECT_EQ(hsv.Hue(), hue == 360.0F ? 0.0F : hue);
        EXPECT_EQ(HSVColor(hue, 1.0F, 1.0F).Hue(), hsv.Hue());
    }
}

TEST(HSVColor, IsBlackForAHueOutsideTheSextantsAndMakesComponentsThatNoIntHoldsZero) {
    for (const float hue : {360.5F, 720.0F, -60.0F, 1e30F, -1e30F, infinity, nan}) {
        EXPECT_EQ(static_cast<RGBColor>(HSVColor(hue, 1.0F, 1.0F)), RGBColor()) << hue;
    }
    for (const float value : {1e30F, -1e30F, infinity, nan}) {
        EXPECT_EQ(static_cast<RGBColor>(HSVColor(-1.0F, 0.0F, value)), RGBColor()) << value;
        EXPECT_EQ(static_cast<RGBColor>(HSVColor(0.0F, 1.0F, value)), RGBColor()) << value;
        EXPECT_EQ(static_cast<RGBColor>(HSVColor(30.0F, value, 1.0F)), RGBColor(255, 0, 0));
    }
}

}  // namespace
