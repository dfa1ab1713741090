// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/transformation_2d.h>

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

namespace GTL {

namespace {

struct Direction {
    double degrees = 0;
    double sine = 0;
    double cosine = 1;
};

// Many points are classified against one rectangle in turn, and the sine and the cosine would be
// most of the work. Three numbers fit beside the program's own thread storage, where reading them
// takes no call, also in a library that is loaded late.
[[gnu::tls_model("initial-exec")]] constinit thread_local Direction lastDirection;

// A bound of what rounding does to the corners of a rectangle whose coordinates and sides add up
// to the given sum.
double Rounding(double sum) noexcept {
    return std::isinf(sum) ? 0 : 8 * std::numeric_limits<double>::epsilon() * sum;
}

}  // namespace

template <PlanePoint P>
CLS::CLASSIFICATION Rectangle<P>::Classify(const P& point) const noexcept {
    const P& origin = this->points[0];
    if (rotation.Get() == 0) {
        const bool within = origin.x <= point.x && point.x <= this->points[1].x &&
                            origin.y <= point.y && point.y <= this->points[3].y;
        return within ? CLS::INSIDE : CLS::OUTSIDE;
    }
    Direction& turn = lastDirection;
    const Vector2D<double> way = point - origin;
    const double reach = std::fabs(width) + std::fabs(height);
    const double tolerance = Rounding(std::fabs(origin.x) + std::fabs(origin.y) + reach);
    if (turn.degrees != rotation.Get()) {
        // No rotation brings a point nearer to the corner it turns about.
        const double farthest = reach + 4 * tolerance;
        if (std::fabs(way.x) > farthest || std::fabs(way.y) > farthest) {
            return CLS::OUTSIDE;
        }
        const double angle = rotation.Rad();  // written so, both come from one call
        turn = {rotation.Get(), std::sin(angle), std::cos(angle)};
    }
    const double dx = turn.cosine * way.x - turn.sine * way.y;
    const double dy = turn.sine * way.x + turn.cosine * way.y;
    const double depth = std::min(std::min(dx, width - dx), std::min(dy, height - dy));
    return depth >= -tolerance ? CLS::INSIDE : CLS::OUTSIDE;
}

template <PlanePoint P>
void Rectangle<P>::UpdateCorners() noexcept {
    auto& corners = this->points;
    const P origin = corners[0];
    corners[1] = {origin.x + width, origin.y};
    corners[2] = {origin.x + width, origin.y + height};
    corners[3] = {origin.x, origin.y + height};
    if (MATH::Equal(0, rotation.Get())) {
        return;
    }
    const bool aboutCorner = anchor >= 0 && anchor < this->NumPoints();
    assert(aboutCorner || anchor == 8);
    const P centre = aboutCorner
                         ? P(this->Point(anchor))
                         : P(0.5 * (origin.x + corners[2].x), 0.5 * (corners[2].y + origin.y));
    Transformation2D<P> turn;
    turn.Translate(-centre.x, -centre.y);
    turn.Rotate(rotation);
    turn.Translate(centre.x, centre.y);
    for (int i = 0; i < this->NumPoints(); ++i) {
        if (i != anchor) {
            turn.Apply(this->Point(i));
        }
    }
}

template class Rectangle<Point2D<double>>;

}  // namespace GTL
