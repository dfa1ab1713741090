// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <algorithm>
#include <cmath>

namespace {

using Point = GTL::Point2D<double>;
using Vector = GTL::Vector2D<double>;
using Rect = TextRectComp::Rect;

Vector Scaled(const Vector& v, double factor) noexcept {
    return {v.x * factor, v.y * factor};
}

Vector Sum(const Vector& a, const Vector& b) noexcept {
    return {a.x + b.x, a.y + b.y};
}

bool IsRaised(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_2 ||
           dli.Presentation() == DepthLabelInfo::PRESENTATION_4;
}

bool IsLowered(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_1 ||
           dli.Presentation() == DepthLabelInfo::PRESENTATION_3;
}

bool KeepsPoint(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_3 ||
           dli.Presentation() == DepthLabelInfo::PRESENTATION_4;
}

bool IsMerged(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_0;
}

std::string NumberText(const DepthLabelInfo& dli, double depth) {
    std::string text;
    MARLINSUITE::AppendFixed(text, depth, std::min(dli.Precision(), TextRectComp::MaxDecimals));
    return text;
}

// Where the number is split; npos when it is measured in one piece.
std::size_t SplitPoint(const DepthLabelInfo& dli, const std::string& number) {
    const bool inOnePiece = IsMerged(dli) && dli.Placement() == DepthLabelInfo::PLACEMENT_2;
    return inOnePiece ? std::string::npos : number.rfind('.');  // which is near the end
}

// The rectangle's way up by the font's descent; none on the baseline, whose box ends there.
Vector DescentShift(const DepthLabelInfo& dli, const Rect& integers) {
    const Vector up = integers.Point(2) - integers.Point(1);
    const double length = std::hypot(up.x, up.y);
    if (dli.Justification() >= TextInfo::BASELINE_LEFT &&
        dli.Justification() <= TextInfo::BASELINE_RIGHT) {
        return {};
    }
    const TEXTMETRICA& tm = TextHeightFactComp::Get().GetMetrics(dli).otmTextMetrics;
    if (length == 0 || tm.tmHeight == 0) {
        return {};
    }
    const double factor = TextHeightFactComp::Get()(dli);
    return Scaled(up,
                  static_cast<double>(dli.Size()) * tm.tmDescent * factor / tm.tmHeight / length);
}

Vector CentreOfLabel(const DepthLabelInfo& dli, const Rect& integers, const Rect& decimals) {
    const Point& origin = integers.Point(0);
    if (IsMerged(dli)) {
        return Scaled(integers.Point(2) - origin, 0.5);
    }
    if (IsRaised(dli)) {
        return Scaled(decimals.Point(2) - origin, 0.5);
    }
    if (IsLowered(dli)) {
        const Point& corner = integers.Point(3);
        return Sum(corner - origin, Scaled(decimals.Point(1) - corner, 0.5));
    }
    return {};
}

Vector LabelOffset(const DepthLabelInfo& dli, const Rect& integers, const Rect& decimals) {
    if (dli.Placement() == DepthLabelInfo::PLACEMENT_1) {
        return Sum(integers.Point(1) - integers.Point(0), DescentShift(dli, integers));
    }
    if (dli.Placement() == DepthLabelInfo::PLACEMENT_2) {
        return CentreOfLabel(dli, integers, decimals);
    }
    return DescentShift(dli, integers);
}

void Shift(Rect& rect, const Vector& back) noexcept {
    for (Point& corner : rect.points) {
        corner = {corner.x - back.x, corner.y - back.y};
    }
}

Rect Placed(const Point& corner, const Vector& size, const Angle& rotation) {
    Rect rect;
    rect.points[0] = corner;
    rect.width = size.x;
    rect.height = size.y;
    rect.rotation = rotation;
    rect.UpdateCorners();
    return rect;
}

}  // namespace

TextRectComp::Rect TextRectComp::DecimalsAtFullSize(const DepthLabelInfo& dli, const Rect& integers,
                                                    std::string_view text) {
    return Placed(integers.Point(1), GetTextExtents(dli, text, false), dli.Rotation());
}

TextRectComp::Rect TextRectComp::DecimalsSetApart(const DepthLabelInfo& dli, const Rect& integers,
                                                  std::string_view text) {
    const Extents size = GetTextExtents(dli, text, true);
    const Vector up = integers.Point(2) - integers.Point(1);
    const double thirds = (IsRaised(dli) ? 1.0 : 0.0) - (IsLowered(dli) ? 1.0 : 0.0);
    const double gap = 0.15 * dli.Size();
    const Vector along(gap * dli.Rotation().Cos(), gap * dli.Rotation().Sin());
    const Point corner = integers.Point(1) + Sum(Scaled(up, thirds / 3.0), along);
    return Placed(corner, size, dli.Rotation());
}

void TextRectComp::OffsetLabels(const DepthLabelInfo& dli, Rect& integers, Rect& decimals) {
    const Vector offset = LabelOffset(dli, integers, decimals);
    Shift(integers, offset);
    if (!IsMerged(dli)) {
        Shift(decimals, offset);
        return;
    }
    integers.width += decimals.width;
    integers.UpdateCorners();
    decimals = Rect();
}

std::pair<TextRectComp::LabelPart, TextRectComp::LabelPart> TextRectComp::operator()(
    const DepthLabelInfo& dli, double depth) {
    std::pair<LabelPart, LabelPart> label;
    auto& [integers, integerText] = label.first;
    auto& [decimals, decimalText] = label.second;
    integerText = NumberText(dli, depth);
    const std::size_t split = SplitPoint(dli, integerText);
    const std::string_view number = integerText;
    if (IsMerged(dli)) {
        integers = RectOf(dli, number.substr(0, split));
        if (split != std::string::npos) {
            decimals = DecimalsAtFullSize(dli, integers, number.substr(split));
        }
    } else if (split == std::string::npos) {
        integers = RectOf(dli, number);
        decimalText = " ";
    } else {
        decimalText = number.substr(split + 1);
        integerText.resize(KeepsPoint(dli) ? split + 1 : split);
        integers = RectOf(dli, integerText);
        decimals = DecimalsSetApart(dli, integers, decimalText);
    }
    OffsetLabels(dli, integers, decimals);
    return label;
}
