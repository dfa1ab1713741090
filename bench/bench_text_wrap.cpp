// SPDX-License-Identifier: MIT
// A text of 2,000 characters is broken into lines of 400 pixels.
#include <marlin/text/text_rect_comp.h>

#include <QTextLayout>

#include <bench/jobs.h>
#include <bench/layouts.h>

namespace {

using BENCH::MeasuredStyle;

constexpr int lineWidth = 400;
constexpr std::size_t length = 2'000;

struct Wrapped {
    MeasuredStyle Font;
    TextInfo Style = Font.Text();
    std::string Text = BENCH::LongText(length);
    TextRectComp Measure;

    Wrapped() {
        Style.SetMultiLine(true);
        Style.SetRectWidth(lineWidth);
    }
    [[nodiscard]] int Lines() {
        benchmark::DoNotOptimize(Measure(Style, Text));
        return Measure.GetNumberOfSubStrings();
    }
};

void RequireSameLines(int lines, const char* what) {
    const int ours = Wrapped().Lines();
    BENCH::Require(ours > 30, "TextRectComp");
    BENCH::RequireSameWidth(lines, ours, 0.1, what);
}

struct QtWrapped {
    QFont Font;
    QString Text = QString::fromStdString(BENCH::LongText(length));

    explicit QtWrapped(bool shaped) : Font(BENCH::QtFont(MeasuredStyle()).Font(shaped)) {}
    [[nodiscard]] int Lines() const {
        QTextLayout layout(Text, Font);
        layout.beginLayout();
        double height = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(lineWidth);
            line.setPosition({0, height});
            height += line.height();
        }
        layout.endLayout();
        benchmark::DoNotOptimize(layout.boundingRect());
        return layout.lineCount();
    }
};

void EnterQt(const char* name, bool shaped) {
    BENCH::Contest(
        name,
        [shaped] {
            const QtWrapped text(shaped);
            RequireSameLines(text.Lines(), "QTextLayout");
            return text;
        },
        [](const QtWrapped& text) { benchmark::DoNotOptimize(text.Lines()); });
}

struct PangoWrapped {
    BENCH::PangoText Layout{MeasuredStyle()};
    std::string Text = BENCH::LongText(length);

    PangoWrapped() { Layout.WrapAt(lineWidth); }
    [[nodiscard]] int Lines() {
        benchmark::DoNotOptimize(Layout.Width(Text));
        return Layout.Lines();
    }
};

}  // namespace

int main(int argc, char** argv) {
    const BENCH::QtApplication application(argc, argv);
    BENCH::Contest(
        "text_wrap_2000/marlin", [] { return Wrapped(); },
        [](Wrapped& text) { benchmark::DoNotOptimize(text.Lines()); });
    EnterQt("text_wrap_2000/qtextlayout", true);
    EnterQt("text_wrap_2000/qt_no_shaping", false);
    BENCH::Contest(
        "text_wrap_2000/pango",
        [] {
            auto text = std::make_unique<PangoWrapped>();
            RequireSameLines(text->Lines(), "Pango");
            return text;
        },
        [](const auto& text) { benchmark::DoNotOptimize(text->Lines()); });
    return BENCH::Run(argc, argv);
}
