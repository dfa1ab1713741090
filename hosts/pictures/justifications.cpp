// SPDX-License-Identifier: MIT
#include "pictures.h"
#include "text_drawing.h"

#include <array>

namespace PICTURES {

namespace {

constexpr double cell = 15;
constexpr double titleHeight = 3.4;
constexpr double margin = 2;
constexpr double header = 4;
constexpr std::array<double, 4> rotations = {0, 30, 120, 270};
constexpr std::array<const char*, 12> names = {
    "bottom left",   "bottom center", "bottom right",    "middle right",
    "top right",     "top center",    "top left",        "middle left",
    "middle center", "baseline left", "baseline center", "baseline right"};

void DrawPlaced(Svg& svg, const TextInfo& style, const Svg::Point& at) {
    const std::string text = "\xC5gy";
    TextRectComp rects;
    DrawRect(svg, rects(style, text), at, "#dcebf7", "#3878b0");
    DrawText(svg, style, text, at);
    DrawMark(svg, at);
}

// All rotations of one justification, the top left corner of their field given.
void DrawJustification(Svg& svg, std::size_t index, const Svg::Point& corner) {
    constexpr auto numRotations = static_cast<double>(rotations.size());
    const double line = corner.y + titleHeight;
    DrawCaption(svg, names[index], {corner.x, line - 0.8}, TextInfo::BASELINE_LEFT, 1.6);
    svg.Line({corner.x, line}, {corner.x + numRotations * cell, line}, {"#c0c8d0", 0.1, ""});
    for (std::size_t i = 0; i < rotations.size(); ++i) {
        const double left = corner.x + static_cast<double>(i) * cell;
        TextInfo style = StyleOf(2.5, static_cast<TextInfo::JUSTIFICATION>(index));
        style.SetRotation(rotations[i]);
        DrawPlaced(svg, style, {left + cell / 2, line + cell / 2});
    }
}

// Above the fields of a column.
void DrawRotations(Svg& svg, double left) {
    for (std::size_t i = 0; i < rotations.size(); ++i) {
        std::string degrees;
        AppendNumber(degrees, rotations[i]);
        DrawCaption(svg, degrees + "\xB0", {left + (static_cast<double>(i) + 0.5) * cell, 3},
                    TextInfo::BASELINE_CENTER);
    }
}

}  // namespace

// Two justifications a row.
std::string DrawJustifications() {
    constexpr double width = static_cast<double>(rotations.size()) * cell + margin;
    constexpr double rowHeight = cell + titleHeight;
    Svg svg(2 * width + margin, header + 6 * rowHeight + margin);
    DrawRotations(svg, margin);
    DrawRotations(svg, margin + width);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t row = i / 2;
        DrawJustification(svg, i,
                          {margin + static_cast<double>(i % 2) * width,
                           header + static_cast<double>(row) * rowHeight});
    }
    return svg.Document();
}

}  // namespace PICTURES
