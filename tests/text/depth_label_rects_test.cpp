// SPDX-License-Identifier: MIT
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

using Rect = TextRectComp::Rect;

DepthLabelInfo Label(int presentation, int placement, int precision = 2, double degrees = 0) {
    DepthLabelInfo dli;
    dli.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(presentation));
    dli.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(placement));
    dli.SetPrecision(precision);
    dli.SetRotation(Angle(degrees));
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
    return TextRectComp()(ti, text).width;
}

void ExpectNear(const GTL::Point2D<double>& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
}

TEST(DepthLabelRects, SetsTheTextsApartAsThePresentationSaysInEveryPlacement) {
    const struct {
        int Presentation;
        double Depth;
        int Precision;
        const char* Integers;
        const char* Decimals;
    } cases[] = {
        {0, 7.25, 2, "7.25", ""},   {1, 7.25, 2, "7", "25"},
        {2, 7.25, 2, "7", "25"},    {3, 7.25, 2, "7.", "25"},
        {4, 7.25, 2, "7.", "25"},   {2, 7.25, 0, "7", " "},
        {1, -0.004, 2, "-0", "00"}, {1, 1e15, 1, "1000000000000000", "0"},
        {0, 7.25, -3, "7", ""},     {1, 9.999, 2, "10", "00"},
    };
    TextRectComp rects;
    for (const auto& c : cases) {
        for (int placement = 0; placement <= 3; ++placement) {
            const auto [integers, decimals] =
                rects(Label(c.Presentation, placement, c.Precision), c.Depth);
            EXPECT_EQ(integers.second, c.Integers) << c.Presentation << ' ' << c.Depth;
            EXPECT_EQ(decimals.second, c.Decimals) << c.Presentation << ' ' << c.Depth;
        }
    }
}

TEST(DepthLabelRects, OneRectangleCoversAMergedLabel) {
    TextRectComp rects;
    for (int placement = 0; placement <= 2; ++placement) {
        const auto [integers, decimals] = rects(Label(0, placement), 7.25);
        const bool inOnePiece = placement == 2;
        const double width = inOnePiece ? Width("7.25") : Width("7") + Width(".25");
        const double height = integers.first.height;
        const double left = inOnePiece ? -width / 2 : placement == 1 ? -Width("7") : 0.0;
        const double low = inOnePiece ? -height / 2 : -Descent(Label(0, 0));
        EXPECT_EQ(rects.GetSubString(0), inOnePiece ? "7.25" : ".25");
        ExpectNear(integers.first.points[0], left, low);
        ExpectNear(integers.first.points[2], left + width, low + height);
        EXPECT_EQ(decimals.first.width, 0.0);
        EXPECT_EQ(decimals.first.points, Rect().points);
    }
}

TEST(DepthLabelRects, DecimalsOfTwoThirdsStandAThirdHigherOrLowerAndTheWholeIsCentred) {
    TextRectComp rects;
    for (int presentation = 1; presentation <= 4; ++presentation) {
        for (const double degrees : {0.0, 40.0}) {
            const bool raised = presentation % 2 == 0;
            const auto [first, second] = rects(Label(presentation, 0, 2, degrees), 7.25);
            const Rect& integers = first.first;
            const Rect& decimals = second.first;
            const double cosine = std::cos(degrees * M_PI / 180);
            const double sine = std::sin(degrees * M_PI / 180);
            // Up a text that is turned clockwise, and a gap that turns the other way.
            const double third = integers.height / 3 * (raised ? 1 : -1);
            ExpectNear(decimals.points[0],
                       integers.points[1].x + third * sine + 0.15 * 2.5 * cosine,
                       integers.points[1].y + third * cosine + 0.15 * 2.5 * sine);
            ExpectNear(decimals.points[1], decimals.points[0].x + decimals.width * cosine,
                       decimals.points[0].y - decimals.width * sine);
            EXPECT_NEAR(integers.width, Width(presentation < 3 ? "7" : "7."), 1e-9);
            EXPECT_NEAR(decimals.width, Width("25", 2.0 / 3.0), 1e-9);
            EXPECT_EQ(rects.GetSubString(0), "25");
            // A centred label lies around the position, from one outer corner to the other.
            const auto [whole, part] = rects(Label(presentation, 2, 2, degrees), 123.45);
            const auto& low = raised ? whole.first.points[0] : whole.first.points[3];
            const auto& high = raised ? part.first.points[2] : part.first.points[1];
            ExpectNear(high, -low.x, -low.y);
            EXPECT_GT(part.first.width, 0.0);
        }
    }
}

TEST(DepthLabelRects, PlacementChoosesThePointThatTheLabelHangsOn) {
    TextRectComp rects;
    for (const double degrees : {0.0, 40.0}) {
        for (const std::size_t corner : {0U, 1U}) {
            DepthLabelInfo dli = Label(1, static_cast<int>(corner), 2, degrees);
            // The way up of a text turned clockwise.
            const double x = Descent(dli) * std::sin(degrees * M_PI / 180);
            const double y = Descent(dli) * std::cos(degrees * M_PI / 180);
            ExpectNear(rects(dli, 7.25).first.first.points[corner], -x, -y);
            dli.SetJustification(TextInfo::BASELINE_LEFT);
            ExpectNear(rects(dli, 7.25).first.first.points[corner], 0.0, 0.0);
        }
    }
}

TEST(DepthLabelRects, OddDepthsAndStylesGiveClearResults) {
    TextRectComp rects;
    EXPECT_EQ(rects(Label(1, 0), std::nan("")).first.second, "nan");
    EXPECT_EQ(rects(Label(1, 0), std::numeric_limits<double>::infinity()).second.second, " ");
    EXPECT_EQ(rects(Label(1, 0, 2'000'000'000), 0.5).second.second.size(), 1074U);
    EXPECT_EQ(rects(Label(1, 0, 0), 1e308).first.second.size(), 309U);
    for (int presentation = 0; presentation <= 4; ++presentation) {
        for (int placement = 0; placement <= 2; ++placement) {
            DepthLabelInfo dli = Label(presentation, placement);
            dli.SetSize(0.0F);
            const auto [integers, decimals] = rects(dli, 7.25);
            EXPECT_EQ(integers.first.width + decimals.first.height, 0.0);
            EXPECT_EQ(integers.first.points[0].x, 0.0);
        }
    }
}

}  // namespace
