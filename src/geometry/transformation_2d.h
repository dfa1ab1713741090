// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/geometry/angle.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/transformation.h>
#include <marlin/platform/export.h>

#include <array>

namespace GTL {

/// An affine transformation of the plane: a 3 x 3 matrix acting on columns (x, y, 1). Default the
/// identity. What is composed last is applied last: `Translate(-c.x, -c.y)`, `Rotate(a)`,
/// `Translate(c.x, c.y)` rotates about c.
template <PlanePoint P>
class MARLIN_API Transformation2D final : public Transformation<P> {
public:
    void Apply(P& point) const noexcept override {
        const double x = point.x;
        const double y = point.y;
        point.x = m_Matrix[0][0] * x + m_Matrix[0][1] * y + m_Matrix[0][2];
        point.y = m_Matrix[1][0] * x + m_Matrix[1][1] * y + m_Matrix[1][2];
    }

    void Translate(double dx, double dy) noexcept {
        m_Matrix[0][2] += dx;
        m_Matrix[1][2] += dy;
    }
    /// About the origin, clockwise when y points up: 90 degrees turn (1, 0) to (0, -1).
    void Rotate(const Angle& angle) noexcept;

private:
    // The last row stays (0, 0, 1), which every composition relies on.
    std::array<std::array<double, 3>, 3> m_Matrix{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

extern template class Transformation2D<Point2D<double>>;

}  // namespace GTL
