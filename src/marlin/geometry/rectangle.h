// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/angle.h>
#include <marlin/geometry/geo_primitive.h>
#include <marlin/geometry/point_2d.h>

namespace GTL {

/// A rectangle at any rotation, given by its four corners. Default all zero.
///
/// Corner 0 is the origin corner, 1 lies `width` along the rectangle's own x axis, 3 lies `height`
/// along its own y axis, 2 opposite. Set corner 0, the size, the rotation and the anchor, then
/// call `UpdateCorners`. Several threads may classify against one rectangle at a time.
template <PlanePoint P>
class MARLIN_API Rectangle : public GeoPrimitive<P, 4> {
public:
    Angle rotation;     ///< clockwise when y points up
    double width = 0;   ///< along its own x axis
    double height = 0;  ///< along its own y axis
    int anchor = 0;     ///< what the rotation leaves in place: a corner, or 8 for the centre

    /// INSIDE, the boundary included, or OUTSIDE. Without rotation the corners decide exactly.
    /// Otherwise corner 0, the rotation and the size do, and a point that leaves a side by no
    /// more than the corners may have been rounded is INSIDE: all four corners are.
    [[nodiscard]] CLS::CLASSIFICATION Classify(const P& point) const noexcept override;

    /// Makes corners 1 to 3 from corner 0 and the size, then turns all corners but the anchor
    /// about the anchor, unless the rotation equals 0 within the tolerance of `MATH::Equal`. The
    /// turn moves corner 0 too (except at anchor 0), so set it again before the next call. An
    /// anchor other than 0 to 3 and 8 is the caller's error and taken for the centre.
    void UpdateCorners() noexcept;
};

extern template class Rectangle<Point2D<double>>;

}  // namespace GTL
