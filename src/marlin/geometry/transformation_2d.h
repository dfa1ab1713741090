// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/angle.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/transformation.h>

#include <array>
#include <span>

namespace GTL {

/// An affine transformation of the plane: a 3 x 3 matrix acting on columns (x, y, 1). Default the
/// identity. What is composed last is applied last: `Translate(-c.x, -c.y)`, `Rotate(a)`,
/// `Translate(c.x, c.y)` rotates about c.
///
/// @code
/// GTL::Transformation2D<GTL::Point2D<double>> turn;
/// turn.Translate(1, 0);
/// turn.Rotate(90);
/// GTL::Point2D<double> point;
/// turn.Apply(point);
/// assert(point == GTL::Point2D<double>(0, -1));
/// @endcode
template <PlanePoint P>
class MARLIN_API Transformation2D final : public Transformation<P> {
public:
    /// x' = m00 x + m01 y + m02, y' = m10 x + m11 y + m12.
    void Apply(P& point) const noexcept override { Apply(std::span<P, 1>(&point, 1)); }
    /// Moves each of the points.
    void Apply(std::span<P> points) const noexcept {
        // Copies, of which no point can be a part, stay in registers.
        const double xx = m_Matrix[0][0];
        const double xy = m_Matrix[0][1];
        const double xOffset = m_Matrix[0][2];
        const double yx = m_Matrix[1][0];
        const double yy = m_Matrix[1][1];
        const double yOffset = m_Matrix[1][2];
        for (P& point : points) {
            point = {xx * point.x + xy * point.y + xOffset, yx * point.x + yy * point.y + yOffset};
        }
    }

    /// By a distance along each axis, after all that was composed before.
    void Translate(double dx, double dy) noexcept {
        m_Matrix[0][2] += dx;
        m_Matrix[1][2] += dy;
    }
    /// About the origin, clockwise when y points up: 90 degrees turn (1, 0) to (0, -1). After all
    /// that was composed before.
    void Rotate(const Angle& angle) noexcept;

private:
    // The last row is always (0, 0, 1), on which every composition relies.
    std::array<std::array<double, 3>, 3> m_Matrix{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

extern template class Transformation2D<Point2D<double>>;

}  // namespace GTL
