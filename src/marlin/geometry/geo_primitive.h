// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/geo_primitive_base.h>

#include <array>
#include <cassert>
#include <cstddef>

namespace GTL {

/// A shape of exactly N points, by default all at the origin. An index outside [0, N) is the
/// caller's error.
template <class P, int N>
class MARLIN_API GeoPrimitive : public GeoPrimitiveBase<P> {
    static_assert(N > 0);

public:
    /// In index order.
    std::array<P, static_cast<std::size_t>(N)> points{};

    /// The point of an index in [0, N), to be changed.
    [[nodiscard]] P& Point(int index) override { return points[Checked(index)]; }
    /// The point of an index in [0, N).
    [[nodiscard]] const P& Point(int index) const { return points[Checked(index)]; }
    P& SetPoint(int index, const P& point) override { return points[Checked(index)] = point; }
    [[nodiscard]] int NumPoints() const override { return N; }
    void Transform(const Transformation<P>& transformation) override {
        for (P& point : points) {
            transformation.Apply(point);
        }
    }
    void UpdateExtents(Extents3D<double>& extents) const override {
        for (const P& point : points) {
            extents.Update(point.x, point.y, 0);
        }
    }

private:
    [[nodiscard]] static std::size_t Checked(int index) noexcept {
        assert(index >= 0 && index < N);
        return static_cast<std::size_t>(index);
    }
};

extern template class GeoPrimitive<Point2D<double>, 4>;

}  // namespace GTL
