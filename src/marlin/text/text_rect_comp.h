// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/vector_2d.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/text_info.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Computes the area of a text as a rectangle around the origin: the point of the text box that the
/// justification names lies at (0, 0). Lengths are in the units of `TextInfo::Size()`, y points up,
/// rotation is clockwise. For a style that cannot be measured width and height are 0.
///
/// It keeps the lines of the text measured last, and the height of one line; at first none, and 0.
/// A value. The process measures text on one thread at a time.
/// @code
/// TextInfo style;
/// style.SetJustification(TextInfo::MIDDLE_CENTER);
/// TextRectComp rects;
/// const TextRectComp::Rect box = rects(style, "Wreck 1954");
/// assert(box.points[0].x == -box.width / 2);
/// DepthLabelInfo label(style);
/// label.SetPresentation(DepthLabelInfo::PRESENTATION_1);
/// label.SetPrecision(1);
/// const auto [integers, decimals] = rects(label, 12.5);
/// assert(integers.second == "12" && decimals.second == "5");
/// @endcode
class MARLIN_API TextRectComp {
public:
    /// An area in the units of the text, turned about its justified point.
    using Rect = GTL::Rectangle<GTL::Point2D<double>>;
    /// One part of a depth label: its rectangle and its text.
    using LabelPart = std::pair<Rect, std::string>;

    /// The rectangle of a text. A multi-line style breaks the text at each "\P" (a backslash and a
    /// P) and wraps the paragraphs to `RectWidth()`: after spaces and hyphens, and inside words
    /// that are wider; with a width of 0 after each character. The baseline justifications make the
    /// box of a single line less high, by descent and internal leading. An empty text has no size,
    /// and leaves lines and line height unchanged.
    [[nodiscard]] Rect operator()(const TextInfo& ti, const char* text);
    [[nodiscard]] Rect operator()(const TextInfo& ti, const std::string& text);
    /// The same; the number has no effect.
    [[nodiscard]] Rect operator()(const TextInfo& ti, const char* text, double);
    [[nodiscard]] Rect operator()(const TextInfo& ti, const std::string& text, double);

    /// The integer part and the decimal part of a depth label, separated by its presentation and
    /// placed by its placement. In presentation 0 the first part has the whole number and the
    /// second no text. The gap before decimals that are set apart has the direction (cos, sin) of
    /// the rotation, while texts turn clockwise, so it follows the text at 0 and 180 degrees alone.
    /// For a depth without a decimal point the second text is " ". A precision
    /// above `MaxDecimals` counts as that.
    [[nodiscard]] std::pair<LabelPart, LabelPart> operator()(const DepthLabelInfo& dli,
                                                             double depth);
    /// A depth needs the style of depth labels; a 0 for a text is ambiguous because of this.
    void operator()(const TextInfo& ti, double depth) = delete;

    /// Finds the face that the style is measured with. False, and the target unchanged, for a
    /// style that cannot be measured, whose texts have no size.
    [[nodiscard]] static bool FindFace(const TextInfo& ti, PLATFORM::FontMatch& face);

    /// As many decimals as the smallest double has.
    static constexpr int MaxDecimals = 1074;

    [[nodiscard]] int GetNumberOfSubStrings() const noexcept {
        return static_cast<int>(m_Lines.size());
    }
    /// A line of the text measured last. False, and `out` unchanged, for an index outside the list.
    bool GetSubString(int i, std::string& out) const;
    /// The same line; an empty text for an index outside the list.
    [[nodiscard]] std::string GetSubString(int i) const;
    /// The height of one line.
    [[nodiscard]] double GetTextHeight() const noexcept { return m_LineHeight; }

private:
    using Extents = GTL::Vector2D<double>;

    /// Width and height; `small` measures a single line in two thirds of the size.
    Extents GetTextExtents(const TextInfo& ti, std::string_view text, bool small);
    Extents GetLineExtents(const TextInfo& ti, std::string_view text);
    Extents GetMTextExtents(const TextInfo& ti, std::string_view text);
    Rect RectOf(const TextInfo& ti, std::string_view text);

    std::vector<std::string> m_Lines;
    double m_LineHeight = 0;
};
