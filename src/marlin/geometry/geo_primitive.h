// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/geo_primitive_base.h>
#include <marlin/geometry/transformation_2d.h>

#include <array>
#include <cassert>
#include <cstddef>
#include <typeinfo>

namespace GTL {

/// A shape of exactly N points, all at their default at first. An index outside [0, N) is the
/// caller's error.
template <class P, int N>
class MARLIN_API GeoPrimitive : public GeoPrimitiveBase<P> {
    static_assert(N > 0);

public:
    std::array<P, static_cast<std::size_t>(N)> points{};

    [[nodiscard]] P& Point(int index) override { return points[Checked(index)]; }
    [[nodiscard]] const P& Point(int index) const { return points[Checked(index)]; }
    P& SetPoint(int index, const P& point) override { return points[Checked(index)] = point; }
    [[nodiscard]] int NumPoints() const override { return N; }
    void Transform(const Transformation<P>& transformation) override {
        // The usual kind is called once for all points, not through each of them. Where another
        // module has the same type under another address, the points are moved one by one.
        if constexpr (PlanePoint<P>) {
            if (&typeid(transformation) == &typeid(Transformation2D<P>)) [[likely]] {
                static_cast<const Transformation2D<P>&>(transformation).ApplyToAll(points);
                return;
            }
        }
        ApplyToEach(transformation);
    }
    void UpdateExtents(Extents3D<double>& extents) const override {
        for (const P& point : points) {
            extents.Update(point.x, point.y, 0);
        }
    }

private:
    [[gnu::noinline]] void ApplyToEach(const Transformation<P>& transformation) {
        for (P& point : points) {
            transformation.Apply(point);
        }
    }
    [[nodiscard]] static std::size_t Checked(int index) noexcept {
        assert(index >= 0 && index < N);
        return static_cast<std::size_t>(index);
    }
};

extern template class GeoPrimitive<Point2D<double>, 4>;

}  // namespace GTL
