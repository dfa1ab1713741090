// SPDX-License-Identifier: MIT
// The rectangles of eight short labels in a known style.
#include <marlin/text/text_rect_comp.h>

#include <QFontMetricsF>

#include <bench/jobs.h>
#include <bench/layouts.h>
#include <bench/shaper.h>

namespace {

using BENCH::Labels;
using BENCH::MeasuredStyle;

double OurWidth(const MeasuredStyle& style, const char* label) {
    return TextRectComp()(style.Text(), label).width;
}

// Fits within a thousandth without kerning, within a twentieth with it.
template <class Measure>
void RequireSameWidths(const MeasuredStyle& style, bool kerned, Measure measure, const char* what) {
    for (const char* label : Labels) {
        BENCH::RequireSameWidth(measure(label), OurWidth(style, label), kerned ? 0.05 : 0.001,
                                what);
    }
}

void EnterShaper(const char* name, bool kerned) {
    BENCH::Contest(
        name,
        [kerned] {
            const MeasuredStyle style;
            auto shaper = std::make_unique<BENCH::Shaper>(style, MeasuredStyle::EmSize, kerned);
            RequireSameWidths(
                style, kerned, [&](const char* label) { return shaper->Width(label); }, "hb_shape");
            return shaper;
        },
        [](const auto& shaper) {
            for (const char* label : Labels) {
                benchmark::DoNotOptimize(shaper->Width(label));
            }
        });
}

struct QtLabels {
    QFontMetricsF Metrics;
    std::vector<QString> Texts;

    explicit QtLabels(const MeasuredStyle& style) : Metrics(BENCH::QtFont(style).Font(true)) {
        for (const char* label : Labels) {
            Texts.push_back(QString::fromLatin1(label));
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    const BENCH::QtApplication application(argc, argv);
    BENCH::Contest(
        "text_rect/marlin", [] { return std::pair<MeasuredStyle, TextRectComp>(); },
        [](auto& input) {
            for (const char* label : Labels) {
                benchmark::DoNotOptimize(input.second(input.first.Text(), label));
            }
        });
    EnterShaper("text_rect/hb_shape", true);
    EnterShaper("text_rect/hb_unkerned", false);
    BENCH::Contest(
        "text_rect/qt",
        [] {
            const MeasuredStyle style;
            QtLabels labels(style);
            RequireSameWidths(
                style, true,
                [&](const char* label) { return labels.Metrics.size(0, label).width(); }, "Qt");
            return labels;
        },
        [](const QtLabels& labels) {
            for (const QString& text : labels.Texts) {
                benchmark::DoNotOptimize(labels.Metrics.horizontalAdvance(text));
            }
        });
    BENCH::Contest(
        "text_rect/pango",
        [] {
            const MeasuredStyle style;
            auto layout = std::make_unique<BENCH::PangoText>(style);
            RequireSameWidths(
                style, true, [&](const char* label) { return layout->Width(label); }, "Pango");
            return layout;
        },
        [](const auto& layout) {
            for (const char* label : Labels) {
                benchmark::DoNotOptimize(layout->Width(label));
            }
        });
    return BENCH::Run(argc, argv);
}
