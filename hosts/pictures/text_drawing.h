// SPDX-License-Identifier: MIT
#pragma once

#include "svg.h"
#include <marlin/records/text_info.h>
#include <marlin/text/text_rect_comp.h>

#include <string>

namespace PICTURES {

/// The face of all texts. It is free, so that everybody draws the same pictures.
inline constexpr const char* FaceName = "Liberation Sans";

/// A text as outlines of the font that its style is measured with, in text units, y downwards;
/// its baseline starts at (0, 0).
struct TextShape {
    std::string Path;
    double Width = 0;
    double Ascent = 0;
    double Descent = 0;
};

/// Throws std::runtime_error for a style that has no outlines.
[[nodiscard]] TextShape ShapeOf(const TextInfo& style, const std::string& text);

[[nodiscard]] TextInfo StyleOf(double size,
                               TextInfo::JUSTIFICATION justification = TextInfo::BOTTOM_LEFT);

/// Draws a text with its justified point at a point of the picture, from the glyphs' own advances,
/// ascent and descent: no rectangle takes part, so a wrong one does not fit.
void DrawText(Svg& svg, const TextInfo& style, const std::string& text, const Svg::Point& at,
              const std::string& color = "#101820");
/// Draws a text whose cell begins at a rectangle's origin corner.
void DrawTextIn(Svg& svg, const TextRectComp::Rect& rect, const TextInfo& style,
                const std::string& text, const Svg::Point& at);
/// Draws a rectangle whose insertion point lies at a point of the picture.
void DrawRect(Svg& svg, const TextRectComp::Rect& rect, const Svg::Point& at,
              const std::string& fill, const std::string& edge);
/// Marks a point.
void DrawMark(Svg& svg, const Svg::Point& at);
void DrawCaption(Svg& svg, const std::string& text, const Svg::Point& at,
                 TextInfo::JUSTIFICATION justification = TextInfo::BASELINE_LEFT,
                 double size = 1.6);

}  // namespace PICTURES
