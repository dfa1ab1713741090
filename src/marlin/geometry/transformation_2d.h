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
template <PlanePoint P>
class MARLIN_API Transformation2D final : public Transformation<P> {
public:
    void Apply(P& point) const noexcept override { Move(point, ByColumns()); }
    void ApplyToAll(std::span<P> points) const noexcept {
        // A copy, which no point can be a part of, stays in registers.
        const Columns columns = ByColumns();
        for (P& point : points) {
            Move(point, columns);
        }
    }

    void Translate(double dx, double dy) noexcept {
        m_Matrix[0][2] += dx;
        m_Matrix[1][2] += dy;
    }
    /// About the origin, clockwise when y points up: 90 degrees turn (1, 0) to (0, -1).
    void Rotate(const Angle& angle) noexcept;

private:
    // So that x and y are computed side by side.
    using Columns = std::array<std::array<double, 2>, 3>;

    [[nodiscard]] Columns ByColumns() const noexcept {
        return {{{m_Matrix[0][0], m_Matrix[1][0]},
                 {m_Matrix[0][1], m_Matrix[1][1]},
                 {m_Matrix[0][2], m_Matrix[1][2]}}};
    }
    static void Move(P& point, const Columns& columns) noexcept {
        const double x = point.x;
        const double y = point.y;
        point.x = columns[0][0] * x + columns[1][0] * y + columns[2][0];
        point.y = columns[0][1] * x + columns[1][1] * y + columns[2][1];
    }

    // The last row stays (0, 0, 1), which every composition relies on.
    std::array<std::array<double, 3>, 3> m_Matrix{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

extern template class Transformation2D<Point2D<double>>;

}  // namespace GTL
