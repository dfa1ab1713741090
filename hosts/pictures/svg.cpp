// SPDX-License-Identifier: MIT
#include "svg.h"

#include <marlin/core/number_text.h>

namespace PICTURES {

void AppendNumber(std::string& text, double number) {
    std::string digits;
    MARLINSUITE::AppendFixed(digits, number, 3);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.ends_with('.')) {
        digits.pop_back();
    }
    text += digits == "-0" ? "0" : digits;
}

void Svg::AppendAttribute(std::string_view name, double value) {
    m_Body += ' ';
    m_Body += name;
    m_Body += "=\"";
    AppendNumber(m_Body, value);
    m_Body += '"';
}

void Svg::AppendStroke(const Stroke& stroke) {
    if (stroke.Width > 0) {
        m_Body += " stroke=\"" + stroke.Color + "\"";
        AppendAttribute("stroke-width", stroke.Width);
    }
    if (!stroke.Dashes.empty()) {
        m_Body += " stroke-dasharray=\"" + stroke.Dashes + "\"";
    }
    m_Body += "/>\n";
}

void Svg::Line(const Point& from, const Point& to, const Stroke& stroke) {
    m_Body += "<line";
    AppendAttribute("x1", from.x);
    AppendAttribute("y1", from.y);
    AppendAttribute("x2", to.x);
    AppendAttribute("y2", to.y);
    AppendStroke(stroke);
}

void Svg::Polygon(const std::vector<Point>& corners, std::string_view fill, const Stroke& stroke) {
    m_Body += "<polygon points=\"";
    for (const Point& corner : corners) {
        m_Body += m_Body.ends_with('"') ? "" : " ";
        AppendNumber(m_Body, corner.x);
        m_Body += ',';
        AppendNumber(m_Body, corner.y);
    }
    m_Body += "\" fill=\"" + std::string(fill) + "\"";
    AppendStroke(stroke);
}

void Svg::Dot(const Point& centre, double radius, std::string_view fill) {
    m_Body += "<circle";
    AppendAttribute("cx", centre.x);
    AppendAttribute("cy", centre.y);
    AppendAttribute("r", radius);
    m_Body += " fill=\"" + std::string(fill) + "\"/>\n";
}

void Svg::Shape(const std::string& path, const Point& at, double degrees, std::string_view fill) {
    const auto [entry, isNew] = m_Shapes.try_emplace(path, m_Shapes.size());
    std::string name = "s";
    MARLINSUITE::AppendNumber(name, static_cast<unsigned long>(entry->second));
    if (isNew) {
        m_Definitions += "<path id=\"" + name + "\" d=\"" + path + "\"/>\n";
    }
    m_Body += "<use href=\"#" + name + "\" transform=\"translate(";
    AppendNumber(m_Body, at.x);
    m_Body += ' ';
    AppendNumber(m_Body, at.y);
    m_Body += ") rotate(";
    AppendNumber(m_Body, degrees);
    m_Body += ")\" fill=\"" + std::string(fill) + "\"/>\n";
}

std::string Svg::Document() const {
    std::string size;
    AppendNumber(size, m_Width);
    size += ' ';
    AppendNumber(size, m_Height);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size + "\">\n<defs>\n" +
           m_Definitions + "</defs>\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" +
           m_Body + "</svg>\n";
}

}  // namespace PICTURES
