// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/classification.h>
#include <marlin/geometry/extents_3d.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/transformation.h>

namespace GTL {

/// A shape made of points. It holds no data; the order of its virtual operations is fixed.
template <class P>
class MARLIN_API GeoPrimitiveBase {
public:
    virtual ~GeoPrimitiveBase() = default;

    /// The point of an index in [0, NumPoints()).
    [[nodiscard]] virtual P& Point(int index) = 0;
    /// Copies the point into place and returns the point there.
    virtual P& SetPoint(int index, const P& point) = 0;
    /// How many points the shape has, always the same.
    [[nodiscard]] virtual int NumPoints() const = 0;
    /// The position of the point relative to the shape.
    [[nodiscard]] virtual CLS::CLASSIFICATION Classify(const P& point) const = 0;
    /// Applies the transformation to every point in the order of their indices.
    virtual void Transform(const Transformation<P>& transformation) = 0;
    /// Grows the box by every point, at z = 0. The base has no points.
    virtual void UpdateExtents(Extents3D<double>& extents) const;

protected:
    GeoPrimitiveBase() = default;
    GeoPrimitiveBase(const GeoPrimitiveBase&) = default;
    GeoPrimitiveBase(GeoPrimitiveBase&&) = default;
    GeoPrimitiveBase& operator=(const GeoPrimitiveBase&) = default;
    GeoPrimitiveBase& operator=(GeoPrimitiveBase&&) = default;
};

template <class P>
void GeoPrimitiveBase<P>::UpdateExtents(Extents3D<double>&) const {}

extern template class GeoPrimitiveBase<Point2D<double>>;

}  // namespace GTL
