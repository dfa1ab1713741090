// SPDX-License-Identifier: MIT
#include "pictures.h"
#include "text_drawing.h"

namespace PICTURES {

namespace {

using Rect = TextRectComp::Rect;

// The box of one line: as wide as that line alone is measured, below those before it.
Rect LineBox(const Rect& block, const TextInfo& style, const std::string& line, double lineHeight,
             int index) {
    TextInfo single = style;
    single.SetMultiLine(false);
    TextRectComp rects;
    Rect box = rects(single, line);
    const double up = block.height - (index + 1) * lineHeight;
    const Angle& rotation = style.Rotation();
    box.points[0] = {block.points[0].x + up * rotation.Sin(),
                     block.points[0].y + up * rotation.Cos()};
    box.height = lineHeight;
    box.UpdateCorners();
    return box;
}

void DrawBlock(Svg& svg, const std::string& text, double width, double degrees,
               const Svg::Point& at) {
    TextInfo style = StyleOf(2.5, TextInfo::TOP_LEFT);
    style.SetRotation(degrees);
    style.SetRectWidth(static_cast<float>(width));
    style.SetMultiLine(true);
    TextRectComp rects;
    const Rect block = rects(style, text);
    Rect wrap = block;
    wrap.width = width;
    wrap.UpdateCorners();
    DrawRect(svg, wrap, at, "#f4f4f0", "#b0b0a0");
    DrawRect(svg, block, at, "#dcebf7", "#3878b0");
    for (int i = 0; i < rects.GetNumberOfSubStrings(); ++i) {
        const std::string line = rects.GetSubString(i);
        const Rect box = LineBox(block, style, line, rects.GetTextHeight(), i);
        DrawRect(svg, box, at, "none", "#e09040");
        DrawTextIn(svg, box, style, line, at);
    }
    DrawMark(svg, at);
}

}  // namespace

std::string DrawWrappedText() {
    Svg svg(146, 42);
    const std::string note =
        "Soundings in metres, reduced to chart datum.\\PNo anchoring: under-water cables.";
    DrawBlock(svg, note, 46, 0, {5, 9});
    DrawCaption(svg, "width 46", {5, 5});
    DrawBlock(svg, "One Donaudampfschifffahrtsgesellschaft", 24, 0, {62, 9});
    DrawCaption(svg, "width 24: a word too long for a line", {62, 5});
    DrawBlock(svg, note, 34, 15, {108, 12});
    DrawCaption(svg, "width 34, turned by 15 degrees", {108, 5});
    return svg.Document();
}

}  // namespace PICTURES
