// SPDX-License-Identifier: MIT
#include <marlin/text/detail/depth_label_rects.h>
#include <marlin/text/detail/text_measure.h>

#include <cmath>

namespace MARLINSUITE::detail {

namespace {

using Point = GTL::Point2D<double>;
using Vector = LabelVector;
using Rect = LabelRect;

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

// The rectangle's way up by the font's descent, which puts the label's baseline on its position.
// None for the baseline justifications: their boxes have no descent.
Vector DescentShift(const DepthLabelInfo& dli, const Rect& integers) {
    if (IsOnBaseline(dli)) {
        return {};
    }
    const Vector up = integers.Point(2) - integers.Point(1);
    const double length = std::hypot(up.x, up.y);
    const TextMeasure measure = TextMeasure::Of(dli);
    const TEXTMETRICA& tm = measure.Metrics().otmTextMetrics;
    if (length == 0 || tm.tmHeight == 0) {
        return {};
    }
    const double factor = measure.Factor();
    return Scaled(up,
                  static_cast<double>(dli.Size()) * tm.tmDescent * factor / tm.tmHeight / length);
}

// The parts' outer corners are the ends of a diagonal of the label; which ones they are depends on
// where the decimals are.
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

bool IsMerged(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_0;
}

bool KeepsPoint(const DepthLabelInfo& dli) noexcept {
    return dli.Presentation() == DepthLabelInfo::PRESENTATION_3 ||
           dli.Presentation() == DepthLabelInfo::PRESENTATION_4;
}

std::size_t SplitPoint(const DepthLabelInfo& dli, const std::string& number) noexcept {
    const bool inOnePiece = IsMerged(dli) && dli.Placement() == DepthLabelInfo::PLACEMENT_2;
    // A centred number needs no point where its decimals begin.
    return inOnePiece ? std::string::npos : number.find('.');
}

LabelRect DecimalsAtFullSize(const DepthLabelInfo& dli, const LabelRect& integers,
                             const LabelVector& size) noexcept {
    return Placed(integers.Point(1), size, dli.Rotation());
}

LabelRect DecimalsSetApart(const DepthLabelInfo& dli, const LabelRect& integers,
                           const LabelVector& size) noexcept {
    const Vector up = integers.Point(2) - integers.Point(1);
    const double thirds = (IsRaised(dli) ? 1.0 : 0.0) - (IsLowered(dli) ? 1.0 : 0.0);
    // The contract turns the gap the other way round than the text.
    const double gap = 0.15 * dli.Size();
    const Vector along(gap * dli.Rotation().Cos(), gap * dli.Rotation().Sin());
    return Placed(integers.Point(1) + Sum(Scaled(up, thirds / 3.0), along), size, dli.Rotation());
}

void OffsetLabels(const DepthLabelInfo& dli, LabelRect& integers, LabelRect& decimals) {
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

}  // namespace MARLINSUITE::detail
