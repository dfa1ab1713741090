// SPDX-License-Identifier: MIT
// A hundred rectangles are moved by a transformation; a thousand points are tried against one
// rectangle, or each against one of its own.
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/transformation_2d.h>

#include <Eigen/Geometry>
#include <Eigen/StdVector>
#include <bench/inputs.h>
#include <bench/jobs.h>

namespace {

constexpr std::size_t count = 1'000;
constexpr std::size_t movedCount = 100;

using Point = GTL::Point2D<double>;
using Rect = GTL::Rectangle<Point>;
using Corners = Eigen::Matrix<double, 2, 4>;

std::vector<Rect> Rectangles(std::size_t wanted = count) {
    BENCH::Numbers numbers;
    std::vector<Rect> rectangles(wanted);
    for (Rect& rect : rectangles) {
        rect.points[0] = {100 * numbers.Fraction(), 100 * numbers.Fraction()};
        rect.width = 10 + 40 * numbers.Fraction();
        rect.height = 10 + 40 * numbers.Fraction();
        rect.rotation = 1 + 358 * numbers.Fraction();
        rect.UpdateCorners();
    }
    return rectangles;
}

// About half of them lie in the first rectangle.
std::vector<Point> Points() {
    const Rect rect = Rectangles().front();
    const Point& origin = rect.points[0];
    const auto right = rect.points[1] - origin;
    const auto up = rect.points[3] - origin;
    BENCH::Numbers numbers;
    std::vector<Point> points(count);
    for (Point& point : points) {
        const double along = 1.4 * numbers.Fraction() - 0.2;
        const double high = 1.4 * numbers.Fraction() - 0.2;
        point = {origin.x + along * right.x + high * up.x,
                 origin.y + along * right.y + high * up.y};
    }
    return points;
}

GTL::Transformation2D<Point> Turn() {
    GTL::Transformation2D<Point> turn;
    turn.Translate(-50, -50);
    turn.Rotate(12.5);
    turn.Translate(50, 50);
    return turn;
}

Eigen::Affine2d EigenTurn() {
    const Eigen::Translation2d back(-50, -50);
    return Eigen::Translation2d(50, 50) * Eigen::Rotation2Dd(-Angle(12.5).Rad()) * back;
}

std::vector<Corners> EigenCorners() {
    std::vector<Corners> all;
    for (const Rect& rect : Rectangles(movedCount)) {
        Corners corners;
        for (int i = 0; i < 4; ++i) {
            corners.col(i) << rect.Point(i).x, rect.Point(i).y;
        }
        all.push_back(corners);
    }
    return all;
}

struct OurCorners {
    std::vector<Rect> Rectangles = ::Rectangles(movedCount);
    GTL::Transformation2D<Point> Transformation = Turn();
};

template <class Transformation>
struct TheirCorners {
    std::vector<Corners> Rectangles = EigenCorners();
    Transformation Turn{EigenTurn()};

    void Move() {
        for (Corners& corners : Rectangles) {
            corners = Turn * corners;
        }
        benchmark::ClobberMemory();
    }
};

// Both end at the same place, or else they do not do the same.
template <class Transformation>
TheirCorners<Transformation> SameCorners() {
    OurCorners ours;
    TheirCorners<Transformation> theirs;
    ours.Rectangles.front().Transform(ours.Transformation);
    const Corners moved = theirs.Turn * theirs.Rectangles.front();
    for (int i = 0; i < 4; ++i) {
        const Point& corner = ours.Rectangles.front().points[static_cast<std::size_t>(i)];
        BENCH::Require((moved.col(i) - Eigen::Vector2d(corner.x, corner.y)).norm() < 1e-9,
                       "moving corners");
    }
    return theirs;
}

void EnterTransformations() {
    BENCH::Contest(
        "transform_corners/marlin", [] { return OurCorners(); },
        [](OurCorners& corners) {
            for (Rect& rect : corners.Rectangles) {
                rect.Transform(corners.Transformation);
            }
            benchmark::ClobberMemory();
        });
    BENCH::Contest("transform_corners/eigen_affine", SameCorners<Eigen::Affine2d>,
                   [](auto& corners) { corners.Move(); });
    BENCH::Contest("transform_corners/eigen_compact", SameCorners<Eigen::AffineCompact2d>,
                   [](auto& corners) { corners.Move(); });
}

// A rectangle as its users give it.
struct TheirRectangle {
    Eigen::Vector2d Origin;
    double Rotation;
    double Width;
    double Height;

    explicit TheirRectangle(const Rect& rect)
        : Origin(rect.points[0].x, rect.points[0].y),
          Rotation(rect.rotation.Rad()),
          Width(rect.width),
          Height(rect.height) {}

    [[nodiscard]] Eigen::Affine2d ToOwnAxes() const {
        return Eigen::Rotation2Dd(Rotation) * Eigen::Translation2d(-Origin);
    }
    [[nodiscard]] bool HasInside(const Eigen::Vector2d& place) const {
        return place.x() >= 0 && place.x() <= Width && place.y() >= 0 && place.y() <= Height;
    }
    [[gnu::noinline]] bool Contains(const Eigen::Vector2d& point) const {
        return HasInside(ToOwnAxes() * point);
    }
};

struct Prepared {
    TheirRectangle Rectangle;
    Eigen::Affine2d ToOwnAxes = Rectangle.ToOwnAxes();

    explicit Prepared(const Rect& rect) : Rectangle(rect) {}
    [[gnu::noinline]] bool Contains(const Eigen::Vector2d& point) const {
        return Rectangle.HasInside(ToOwnAxes * point);
    }
};

template <class Rectangle, class Vector>
struct Trials {
    std::vector<Rectangle> Rectangles;
    std::vector<Vector> Points;
    std::size_t Step;  // 0 for all against the first rectangle

    explicit Trials(std::size_t step) : Step(step) {
        for (const Rect& rect : ::Rectangles()) {
            Rectangles.emplace_back(rect);
        }
        for (const Point& point : ::Points()) {
            Points.emplace_back(point.x, point.y);
        }
    }
    template <class Contains>
    [[nodiscard]] std::size_t Inside(Contains contains) const {
        std::size_t inside = 0;
        for (std::size_t i = 0; i < count; ++i) {
            inside += contains(Rectangles[i * Step], Points[i]) ? 1U : 0U;
        }
        return inside;
    }
};

constexpr auto classified = [](const Rect& rect, const Point& point) {
    return rect.Classify(point) == GTL::CLS::INSIDE;
};
constexpr auto contained = [](const auto& rect, const Eigen::Vector2d& point) {
    return rect.Contains(point);
};

template <class Rectangle, class Vector, class Contains>
void EnterTrials(const std::string& name, std::size_t step, Contains contains) {
    BENCH::Contest(
        name,
        [=] {
            Trials<Rectangle, Vector> trials(step);
            BENCH::Require(trials.Inside(contains) == Trials<Rect, Point>(step).Inside(classified),
                           "finding the points inside");
            return trials;
        },
        [=](const auto& trials) { benchmark::DoNotOptimize(trials.Inside(contains)); });
}

void EnterAllTrials(const std::string& job, std::size_t step) {
    EnterTrials<Rect, Point>(job + "/marlin", step, classified);
    EnterTrials<TheirRectangle, Eigen::Vector2d>(job + "/eigen", step, contained);
    EnterTrials<Prepared, Eigen::Vector2d>(job + "/eigen_prepared", step, contained);
}

}  // namespace

int main(int argc, char** argv) {
    EnterTransformations();
    EnterAllTrials("point_in_rectangle", 0);
    EnterAllTrials("point_in_rectangle_each", 1);
    return BENCH::Run(argc, argv);
}
