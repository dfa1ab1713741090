// SPDX-License-Identifier: MIT
#include "pictures.h"
#include "text_drawing.h"
#include <marlin/color/dxf_color.h>
#include <marlin/core/number_text.h>

namespace PICTURES {

namespace {

constexpr double side = 4;
constexpr double step = 4.6;

std::string NumberText(int number) {
    std::string text;
    MARLINSUITE::AppendNumber(text, number);
    return text;
}

void DrawSwatch(Svg& svg, int index, const Svg::Point& at) {
    const DXFColor color(index);
    svg.Polygon({at, {at.x + side, at.y}, {at.x + side, at.y + side}, {at.x, at.y + side}},
                HexColor(static_cast<unsigned long>(color)), {"#a0a8b0", 0.1, ""});
}

// Entries beside each other, their indices above them.
void DrawRow(Svg& svg, int first, int last, const Svg::Point& at) {
    for (int index = first; index <= last; ++index) {
        const double x = at.x + step * (index - first);
        DrawCaption(svg, NumberText(index), {x + side / 2, at.y - 0.7}, TextInfo::BASELINE_CENTER,
                    1.3);
        DrawSwatch(svg, index, {x, at.y});
    }
}

}  // namespace

// A column for each of the 24 hues, with its ten brightnesses and saturations below each other.
std::string DrawDxfPalette() {
    constexpr double left = 6;
    constexpr double top = 12;
    Svg svg(left + 24 * step + 2, top + 10 * step + 3);
    DrawRow(svg, 0, 9, {left, 3.5});
    DrawRow(svg, 250, 255, {left + 18 * step, 3.5});
    for (int hue = 0; hue < 24; ++hue) {
        const double x = left + step * hue;
        DrawCaption(svg, NumberText(10 + 10 * hue), {x + side / 2, top - 0.3 + 0.9},
                    TextInfo::BASELINE_CENTER, 1.3);
        for (int shade = 0; shade < 10; ++shade) {
            DrawSwatch(svg, 10 + 10 * hue + shade, {x, top + 1.5 + step * shade});
        }
    }
    for (int shade = 0; shade < 10; ++shade) {
        DrawCaption(svg, "+" + NumberText(shade), {left - 1, top + 1.5 + step * shade + side / 2},
                    TextInfo::MIDDLE_RIGHT, 1.3);
    }
    return svg.Document();
}

}  // namespace PICTURES
