// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/geometry/point_2d.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace PICTURES {

/// Appends a number to the thousandth, in the fewest characters.
void AppendNumber(std::string& text, double number);

/// How a line is drawn. The dashes are lengths drawn and left, in turn; none for a solid line.
struct Stroke {
    std::string Color;
    double Width = 0;
    std::string Dashes;
};

/// A drawing in SVG, on white: x to the right, y downwards, in units of the picture. The same
/// calls give the same bytes. Colors are "#rrggbb" or "none".
class Svg {
public:
    using Point = GTL::Point2D<double>;

    Svg(double width, double height) : m_Width(width), m_Height(height) {}

    void Line(const Point& from, const Point& to, const Stroke& stroke);
    void Polygon(const std::vector<Point>& corners, std::string_view fill, const Stroke& stroke);
    void Dot(const Point& centre, double radius, std::string_view fill);
    /// Fills a path, whose own origin is moved to the point and which is turned clockwise there.
    void Shape(const std::string& path, const Point& at, double degrees, std::string_view fill);

    [[nodiscard]] std::string Document() const;

private:
    void AppendAttribute(std::string_view name, double value);
    void AppendStroke(const Stroke& stroke);

    double m_Width;
    double m_Height;
    std::map<std::string, std::size_t> m_Shapes;  // each path is written once
    std::string m_Definitions;
    std::string m_Body;
};

}  // namespace PICTURES
