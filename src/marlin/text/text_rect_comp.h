// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/vector_2d.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/text_info.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Computes the area that a text occupies, as a rectangle about the text's insertion point, the
/// origin: the point of the text box that its justification names lies there. Lengths are in the
/// units of `TextInfo::Size()`, y points up, rotation is clockwise. A style that cannot be
/// measured gives a rectangle of no size.
///
/// It keeps the lines into which the text measured last was broken and the height of one of them;
/// made new it has none, and 0. One thread at a time, and text is measured on one thread of the
/// process at a time. A value.
class MARLIN_API TextRectComp {
public:
    using Rect = GTL::Rectangle<GTL::Point2D<double>>;
    /// A part of a depth label and its text.
    using LabelPart = std::pair<Rect, std::string>;

    /// The rectangle of a text. A multi-line style breaks it at each "\P" (a backslash and a P)
    /// and wraps what lies between to `RectWidth()`, behind spaces and hyphens, within words that
    /// are wider. The baseline justifications lower the box of a single line by descent and
    /// internal leading. An empty text has no size, and leaves lines and line height as they were.
    [[nodiscard]] Rect operator()(const TextInfo& ti, const char* text);
    [[nodiscard]] Rect operator()(const TextInfo& ti, const std::string& text);
    /// The same; the number is not used.
    [[nodiscard]] Rect operator()(const TextInfo& ti, const char* text, double);
    [[nodiscard]] Rect operator()(const TextInfo& ti, const std::string& text, double);

    /// The integer part of a depth label and its decimal part, as the label's presentation sets
    /// them apart and its placement puts them. Presentation 0 has all in the first part and no
    /// text in the second; a depth without a decimal point has " " there. More than
    /// `MaxDecimals` decimals are cut to it.
    [[nodiscard]] std::pair<LabelPart, LabelPart> operator()(const DepthLabelInfo& dli,
                                                             double depth);

    /// More than any depth has.
    static constexpr int MaxDecimals = 1074;

    [[nodiscard]] int GetNumberOfSubStrings() const noexcept {
        return static_cast<int>(m_Lines.size());
    }
    /// A line of the text measured last; false, and `out` unchanged, for an index outside the list.
    bool GetSubString(int i, std::string& out) const;
    /// The line, or an empty one for an index outside the list.
    [[nodiscard]] std::string GetSubString(int i) const;
    /// The height of one line.
    [[nodiscard]] double GetTextHeight() const noexcept { return m_LineHeight; }

private:
    using Extents = GTL::Vector2D<double>;

    /// Width and height; `small` measures a single line at two thirds of the size.
    Extents GetTextExtents(const TextInfo& ti, std::string_view text, bool small);
    Extents GetLineExtents(const TextInfo& ti, std::string_view text);
    Extents GetMTextExtents(const TextInfo& ti, std::string_view text);
    Rect RectOf(const TextInfo& ti, std::string_view text);

    std::vector<std::string> m_Lines;
    double m_LineHeight = 0;
};
