// SPDX-License-Identifier: MIT
// The rectangles of eight depth labels, whose decimals are set apart at two thirds of the size.
// The peer measures the two texts, which are at hand, and places none.
#include <marlin/text/text_rect_comp.h>

#include <bench/jobs.h>
#include <bench/shaper.h>

namespace {

using BENCH::MeasuredStyle;
using BENCH::Shaper;

constexpr double decimalsShare = 2.0 / 3.0;

struct Depth {
    double Value;
    const char* Integers;
    const char* Decimals;
};

constexpr std::array<Depth, 8> depths = {{{7.25, "7", "25"},
                                          {12.5, "12", "50"},
                                          {0.75, "0", "75"},
                                          {118.03125, "118", "03"},
                                          {5.0, "5", "00"},
                                          {33.875, "33", "88"},
                                          {2.125, "2", "12"},
                                          {64.40625, "64", "41"}}};

struct Labels {
    DepthLabelInfo Style{MeasuredStyle().Text()};
    TextRectComp Measure;

    Labels() { Style.SetPresentation(DepthLabelInfo::PRESENTATION_1); }
};

struct Shapers {
    Shaper Large;
    Shaper Small;

    Shapers(const MeasuredStyle& style, bool kerned)
        : Large(style, MeasuredStyle::EmSize, kerned),
          Small(style, MeasuredStyle::EmSize * decimalsShare, kerned) {}
};

void RequireSameLabels(Shapers& shapers, double share) {
    Labels labels;
    for (const Depth& depth : depths) {
        const auto [integers, decimals] = labels.Measure(labels.Style, depth.Value);
        BENCH::Require(integers.second == depth.Integers && decimals.second == depth.Decimals,
                       "splitting a depth");
        BENCH::RequireSameWidth(shapers.Large.Width(depth.Integers), integers.first.width, share,
                                "hb_shape of integers");
        BENCH::RequireSameWidth(shapers.Small.Width(depth.Decimals), decimals.first.width, share,
                                "hb_shape of decimals");
    }
}

void EnterShapers(const char* name, bool kerned) {
    BENCH::Contest(
        name,
        [kerned] {
            auto shapers = std::make_unique<Shapers>(MeasuredStyle(), kerned);
            RequireSameLabels(*shapers, kerned ? 0.1 : 0.001);
            return shapers;
        },
        [](const auto& shapers) {
            for (const Depth& depth : depths) {
                benchmark::DoNotOptimize(shapers->Large.Width(depth.Integers));
                benchmark::DoNotOptimize(shapers->Small.Width(depth.Decimals));
            }
        });
}

}  // namespace

int main(int argc, char** argv) {
    BENCH::Contest(
        "depth_label/marlin", [] { return Labels(); },
        [](Labels& labels) {
            for (const Depth& depth : depths) {
                benchmark::DoNotOptimize(labels.Measure(labels.Style, depth.Value));
            }
        });
    EnterShapers("depth_label/hb_shape", true);
    EnterShapers("depth_label/hb_unkerned", false);
    return BENCH::Run(argc, argv);
}
