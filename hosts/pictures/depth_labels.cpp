// SPDX-License-Identifier: MIT
#include "pictures.h"
#include "text_drawing.h"
#include <marlin/records/depth_label_info.h>

#include <array>

namespace PICTURES {

namespace {

void DrawLabel(Svg& svg, const DepthLabelInfo& style, double depth, const Svg::Point& at) {
    TextRectComp rects;
    const auto [integers, decimals] = rects(style, depth);
    DrawRect(svg, integers.first, at, "#dcebf7", "#3878b0");
    DrawTextIn(svg, integers.first, style, integers.second, at);
    if (decimals.first.width > 0) {
        TextInfo small = style;
        small.SetSize(style.Size() * 2 / 3);
        DrawRect(svg, decimals.first, at, "#fbe6d0", "#e09040");
        DrawTextIn(svg, decimals.first, small, decimals.second, at);
    }
    DrawMark(svg, at);
}

}  // namespace

std::string DrawDepthLabels() {
    constexpr std::array<const char*, 3> placements = {"placement 0", "placement 1", "placement 2"};
    constexpr std::array<const char*, 5> presentations = {
        "presentation 0", "presentation 1", "presentation 2", "presentation 3", "presentation 4"};
    constexpr double column = 24;
    constexpr double row = 12;
    constexpr double left = 15;
    constexpr double top = 5;
    Svg svg(left + column * 5, top + row * 3);
    for (std::size_t i = 0; i < placements.size(); ++i) {
        const double y = top + row * (static_cast<double>(i) + 0.5);
        DrawCaption(svg, placements[i], {1.5, y + 0.8});
        for (std::size_t k = 0; k < presentations.size(); ++k) {
            const double x = left + column * (static_cast<double>(k) + 0.5);
            if (i == 0) {
                DrawCaption(svg, presentations[k], {x, top - 1.5}, TextInfo::BASELINE_CENTER);
            }
            DepthLabelInfo style(StyleOf(3.5));
            style.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(i));
            style.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(k));
            DrawLabel(svg, style, 12.75, {x, y});
        }
    }
    return svg.Document();
}

}  // namespace PICTURES
