// SPDX-License-Identifier: MIT
#include "measurement.h"

#include <cmath>
#include <utility>

namespace HOST {

namespace {

// Corners are exact to a billionth; a rotation leaves less than that where a 0 belongs. The sum
// turns -0 into 0.
double WithoutNoise(double coordinate) {
    constexpr double parts = 1e9;
    return std::round(coordinate * parts) / parts + 0.0;
}

}  // namespace

Measurement::Measurement(const TextInfo& style) : m_Asked(style.Font()) {
    if (TextRectComp::FindFace(style, m_Face)) {
        return;
    }
    if (!PLATFORM::FontCatalog::Find(style.Font().c_str(), 400, false, m_Face)) {
        Refuse("no font can be measured for \"" + style.Font() + "\"");
    } else {
        Refuse("\"" + style.Font() + "\" cannot be measured at size " + NumberText(style.Size()));
    }
}

void Measurement::Append(const Table& table, Output& output) const {
    if (m_Face.Substituted) {
        Report(AsUtf8(m_Asked) + " is missing; measured with " + m_Face.Family);
    }
    table.AppendTo(output);
}

void Measurement::Append(const char* name, Json measured, Output& output) const {
    Json json = {{"font",
                  {{"asked", AsUtf8(m_Asked)},
                   {"family", AsUtf8(m_Face.Family)},
                   {"style", AsUtf8(m_Face.Style)},
                   {"substituted", m_Face.Substituted}}}};
    json[name] = std::move(measured);
    AppendJson(json, output);
}

std::string LengthText(double length) {
    return PlainText(length, 3);
}

std::string CornersText(const TextRectComp::Rect& rect) {
    std::string text;
    for (const auto& corner : rect.points) {
        text += text.empty() ? "" : "  ";
        text += LengthText(corner.x) + "," + LengthText(corner.y);
    }
    return text;
}

void AddRect(const TextRectComp::Rect& rect, Json& json) {
    json["width"] = JsonNumber(rect.width);
    json["height"] = JsonNumber(rect.height);
    Json& corners = json["corners"] = Json::array();
    for (const auto& corner : rect.points) {
        corners.push_back(
            {{"x", JsonNumber(WithoutNoise(corner.x))}, {"y", JsonNumber(WithoutNoise(corner.y))}});
    }
}

}  // namespace HOST
