// SPDX-License-Identifier: MIT
#include "pictures.h"
#include "text_drawing.h"
#include <marlin/records/line_info.h>

#include <array>

namespace PICTURES {

namespace {

// Lengths of dashes and gaps, in the picture's units.
std::string DashesOf(LineInfo::LINESTYLE style) {
    switch (style) {
        case LineInfo::DASHED_LINE:
            return "3 1.5";
        case LineInfo::DOTTED_LINE:
            return "0.6 1.2";
        case LineInfo::DASH_DOT_LINE:
            return "3 1.2 0.6 1.2";
        default:
            return "";
    }
}

void DrawLine(Svg& svg, const LineInfo& line, const Svg::Point& from, double length) {
    svg.Line(from, {from.x + length, from.y},
             {HexColor(line.Color()), static_cast<double>(line.Width()), DashesOf(line.Style())});
}

}  // namespace

std::string DrawLineStyles() {
    constexpr std::array<float, 4> widths = {0.1F, 0.35F, 0.7F, 1.4F};
    constexpr double left = 16;
    constexpr double column = 30;
    constexpr double row = 7;
    constexpr double top = 6;
    Svg svg(left + column * 4 + 2, top + row * 4);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        std::string caption = "width ";
        AppendNumber(caption, static_cast<double>(widths[i]));
        const double x = left + column * static_cast<double>(i);
        DrawCaption(svg, caption, {x, 4});
        for (int style = 0; style < 4; ++style) {
            LineInfo line;
            line.SetStyle(static_cast<LineInfo::LINESTYLE>(style));
            line.SetWidth(widths[i]);
            line.SetColor(0x804000);
            const double y = top + row * (style + 0.5);
            DrawLine(svg, line, {x, y}, column - 3);
            if (i == 0) {
                DrawCaption(svg, line.StyleStr(), {1.5, y}, TextInfo::MIDDLE_LEFT);
            }
        }
    }
    return svg.Document();
}

}  // namespace PICTURES
