// SPDX-License-Identifier: MIT
#include "text_drawing.h"

#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/fonts/fonts.h>
#include <marlin/platform/fonts/text_outline.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <stdexcept>

namespace PICTURES {

namespace {

using PLATFORM::OutlinePoint;
using PLATFORM::OutlineStep;

std::string PathOf(const PLATFORM::TextOutline& outline, double scale) {
    std::string path;
    const auto append = [&path, scale](const OutlinePoint& point) {
        path += ' ';
        AppendNumber(path, point.X * scale);
        path += ' ';
        AppendNumber(path, -point.Y * scale);
    };
    for (const OutlineStep& step : outline.Steps) {
        constexpr std::string_view letters = "MLQC";
        path += path.empty() || step.Kind != OutlineStep::MOVE ? "" : "Z";
        path += letters[static_cast<std::size_t>(step.Kind)];
        if (step.Kind == OutlineStep::CONIC || step.Kind == OutlineStep::CUBIC) {
            append(step.Control1);
        }
        if (step.Kind == OutlineStep::CUBIC) {
            append(step.Control2);
        }
        append(step.To);
    }
    return path + (path.empty() ? "" : "Z");
}

struct Share {
    double Along;  // of the width
    double Up;     // from the baseline, in text units
};

Share JustifiedPoint(TextInfo::JUSTIFICATION justification, const TextShape& shape) {
    const double bottom = -shape.Descent;
    const double middle = (shape.Ascent - shape.Descent) / 2;
    switch (justification) {
        case TextInfo::BOTTOM_LEFT:
            return {0, bottom};
        case TextInfo::BOTTOM_CENTER:
            return {0.5, bottom};
        case TextInfo::BOTTOM_RIGHT:
            return {1, bottom};
        case TextInfo::MIDDLE_RIGHT:
            return {1, middle};
        case TextInfo::TOP_RIGHT:
            return {1, shape.Ascent};
        case TextInfo::TOP_CENTER:
            return {0.5, shape.Ascent};
        case TextInfo::TOP_LEFT:
            return {0, shape.Ascent};
        case TextInfo::MIDDLE_LEFT:
            return {0, middle};
        case TextInfo::MIDDLE_CENTER:
            return {0.5, middle};
        case TextInfo::BASELINE_CENTER:
            return {0.5, 0};
        case TextInfo::BASELINE_RIGHT:
            return {1, 0};
        default:
            return {0, 0};
    }
}

// A point given in a text's own directions, along it and up, from a point of the picture.
Svg::Point Moved(const Svg::Point& from, const Angle& rotation, double along, double up) {
    return {from.x + along * rotation.Cos() + up * rotation.Sin(),
            from.y + along * rotation.Sin() - up * rotation.Cos()};
}

Svg::Point InPicture(const Svg::Point& plot, const Svg::Point& at) {
    return {at.x + plot.x, at.y - plot.y};
}

}  // namespace

TextShape ShapeOf(const TextInfo& style, const std::string& text) {
    const double scale = GDIScaleFactor::Get();
    const double factor = TextHeightFactComp::Get()(style);
    const auto flags = static_cast<unsigned int>(style.Style());
    CDC dc;
    CFont font;
    dc.CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    font.CreateFontA(static_cast<int>(std::ceil(style.Size() * factor * scale)), 0, 0, 0,
                     (flags & TextInfo::BOLD) != 0 ? FW_BOLD : FW_NORMAL,
                     (flags & TextInfo::ITALIC) != 0, (flags & TextInfo::UNDERLINE) != 0, 0,
                     ANSI_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH,
                     style.Font().c_str());
    const GDISelector selected(&dc, font);
    PLATFORM::TextOutline outline;
    if (factor == 0 ||
        !PLATFORM::GetTextOutline(dc, text.data(), static_cast<int>(text.size()), outline)) {
        throw std::runtime_error("no outlines of " + style.Font());
    }
    const double units = outline.Scale / scale;
    return {PathOf(outline, units), outline.Advance * units, outline.Ascent * units,
            outline.Descent * units};
}

TextInfo StyleOf(double size, TextInfo::JUSTIFICATION justification) {
    TextInfo style;
    style.SetFont(FaceName);
    style.SetSize(static_cast<float>(size));
    style.SetJustification(justification);
    return style;
}

void DrawText(Svg& svg, const TextInfo& style, const std::string& text, const Svg::Point& at,
              const std::string& color) {
    const TextShape shape = ShapeOf(style, text);
    const Share share = JustifiedPoint(style.Justification(), shape);
    const Svg::Point pen = Moved(at, style.Rotation(), -share.Along * shape.Width, -share.Up);
    svg.Shape(shape.Path, pen, style.Rotation().Get(), color);
}

void DrawTextIn(Svg& svg, const TextRectComp::Rect& rect, const TextInfo& style,
                const std::string& text, const Svg::Point& at) {
    TextInfo cell = style;
    cell.SetJustification(TextInfo::BOTTOM_LEFT);
    DrawText(svg, cell, text, InPicture(rect.points[0], at));
}

void DrawRect(Svg& svg, const TextRectComp::Rect& rect, const Svg::Point& at,
              const std::string& fill, const std::string& edge) {
    std::vector<Svg::Point> corners;
    for (const Svg::Point& corner : rect.points) {
        corners.push_back(InPicture(corner, at));
    }
    svg.Polygon(corners, fill, {edge, 0.1, ""});
}

void DrawMark(Svg& svg, const Svg::Point& at) {
    const Stroke stroke{"#d02020", 0.12, ""};
    constexpr double arm = 0.9;
    svg.Line({at.x - arm, at.y}, {at.x + arm, at.y}, stroke);
    svg.Line({at.x, at.y - arm}, {at.x, at.y + arm}, stroke);
    svg.Dot(at, 0.3, stroke.Color);
}

void DrawCaption(Svg& svg, const std::string& text, const Svg::Point& at,
                 TextInfo::JUSTIFICATION justification, double size) {
    DrawText(svg, StyleOf(size, justification), text, at, "#506070");
}

}  // namespace PICTURES
