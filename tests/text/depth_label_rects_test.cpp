// SPDX-License-Identifier: MIT
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using Rect = TextRectComp::Rect;

DepthLabelInfo Label(int presentation, int placement, int precision = 2) {
    DepthLabelInfo dli;
    dli.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(presentation));
    dli.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(placement));
    dli.SetPrecision(precision);
    return dli;
}

// The descent of the label's font in text units.
double Descent(const DepthLabelInfo& dli) {
    const auto& tm = TextHeightFactComp::Get().GetMetrics(dli).otmTextMetrics;
    return dli.Size() * static_cast<double>(TextHeightFactComp::Get()(dli)) * tm.tmDescent /
           tm.tmHeight;
}

double Width(const char* text, double share = 1.0) {
    TextInfo ti;
    ti.SetSize(static_cast<float>(2.5 * share));
    TextRectComp rects;
    return rects(ti, text).width;
}

TEST(DepthLabelRects, SetsTheTextsApartAsThePresentationSays) {
    struct Case {
        int Presentation;
        double Depth;
        int Precision;
        const char* Integers;
        const char* Decimals;
    };
    const Case cases[] = {
        {0, 7.25, 2, "7.25", ""},   {1, 7.25, 2, "7", "25"},
        {2, 7.25, 2, "7", "25"},    {3, 7.25, 2, "7.", "25"},
        {4, 7.25, 2, "7.", "25"},   {2, 7.25, 0, "7", " "},
        {1, -0.004, 2, "-0", "00"}, {1, 1e15, 1, "1000000000000000", "0"},
        {0, 7.25, -3, "7", ""},     {1, 9.999, 2, "10", "00"},
    };
    TextRectComp rects;
    for (const Case& c : cases) {
        const auto [integers, decimals] = rects(Label(c.Presentation, 0, c.Precision), c.Depth);
        EXPECT_EQ(integers.second, c.Integers) << c.Presentation << ' ' << c.Depth;
        EXPECT_EQ(decimals.second, c.Decimals) << c.Presentation << ' ' << c.Depth;
    }
}

TEST(DepthLabelRects, OneRectangleCoversAMergedLabel) {
    TextRectComp rects;
    const auto [integers, decimals] = rects(Label(0, 0), 7.25);
    EXPECT_NEAR(integers.first.width, Width("7") + Width(".25"), 1e-9);
    EXPECT_EQ(decimals.first.width, 0.0);
    EXPECT_EQ(decimals.first.points, Rect().points);
    EXPECT_EQ(rects.GetSubString(0), ".25");
    const auto whole = rects(Label(0, 2), 7.25).first.first;
    EXPECT_NEAR(whole.width, Width("7.25"), 1e-9);
    EXPECT_NEAR(whole.points[0].x, -whole.width / 2, 1e-9);
    EXPECT_NEAR(whole.points[2].y, whole.height / 2, 1e-9);
    EXPECT_EQ(rects.GetSubString(0), "7.25");
}

TEST(DepthLabelRects, DecimalsOfTwoThirdsStandAThirdHigherOrLowerAndTheWholeIsCentred) {
    TextRectComp rects;
    for (int presentation = 1; presentation <= 4; ++presentation) {
        const bool raised = presentation % 2 == 0;
        const auto [first, second] = rects(Label(presentation, 0), 7.25);
        const Rect& integers = first.first;
        const Rect& decimals = second.first;
        const double third = integers.height / 3 * (raised ? 1 : -1);
        EXPECT_NEAR(decimals.points[0].x, integers.points[1].x + 0.15 * 2.5, 1e-9);
        EXPECT_NEAR(decimals.points[0].y, integers.points[1].y + third, 1e-9);
        EXPECT_NEAR(integers.width, Width(presentation < 3 ? "7" : "7."), 1e-9);
        EXPECT_NEAR(decimals.width, Width("25", 2.0 / 3.0), 1e-9);
        EXPECT_EQ(rects.GetSubString(0), "25");
        // A centred label lies around the position, from its low left corner to its high right one.
        const auto [whole, part] = rects(Label(presentation, 2), 123.45);
        const auto& low = raised ? whole.first.points[0] : whole.first.points[3];
        const auto& high = raised ? part.first.points[2] : part.first.points[1];
        EXPECT_NEAR(low.x + high.x, 0.0, 1e-9) << presentation;
        EXPECT_NEAR(low.y + high.y, 0.0, 1e-9) << presentation;
    }
}

TEST(DepthLabelRects, PlacementChoosesThePointThatTheLabelHangsOn) {
    TextRectComp rects;
    for (const double degrees : {0.0, 40.0}) {
        DepthLabelInfo dli = Label(1, 0);
        dli.SetRotation(Angle(degrees));
        const double cosine = std::cos(degrees * M_PI / 180);
        const double sine = std::sin(degrees * M_PI / 180);
        // The way up of a text turned clockwise.
        const double x = Descent(dli) * sine;
        const double y = Descent(dli) * cosine;
        const Rect atLeft = rects(dli, 7.25).first.first;
        EXPECT_NEAR(atLeft.points[0].x, -x, 1e-9);
        EXPECT_NEAR(atLeft.points[0].y, -y, 1e-9);
        dli.SetPlacement(DepthLabelInfo::PLACEMENT_1);
        const Rect atPoint = rects(dli, 7.25).first.first;
        EXPECT_NEAR(atPoint.points[1].x, -x, 1e-9);
        EXPECT_NEAR(atPoint.points[1].y, -y, 1e-9);
        dli.SetJustification(TextInfo::BASELINE_LEFT);
        EXPECT_NEAR(rects(dli, 7.25).first.first.points[1].y, 0.0, 1e-9);
    }
}

TEST(DepthLabelRects, OddDepthsAndStylesGiveClearResults) {
    TextRectComp rects;
    EXPECT_EQ(rects(Label(1, 0), std::nan("")).first.second, "nan");
    EXPECT_EQ(rects(Label(1, 0), std::numeric_limits<double>::infinity()).second.second, " ");
    EXPECT_EQ(rects(Label(1, 0, 2'000'000'000), 0.5).second.second.size(),
              static_cast<std::size_t>(TextRectComp::MaxDecimals));
    EXPECT_EQ(rects(Label(1, 0, 0), 1e308).first.second.size(), 309U);
    for (int presentation = 0; presentation <= 4; ++presentation) {
        for (int placement = 0; placement <= 2; ++placement) {
            DepthLabelInfo dli = Label(presentation, placement);
            dli.SetSize(0.0F);
            const auto [integers, decimals] = rects(dli, 7.25);
            EXPECT_EQ(integers.first.width, 0.0);
            EXPECT_EQ(decimals.first.height, 0.0);
            EXPECT_EQ(integers.first.points[0].x, 0.0);
        }
    }
}

}  // namespace
