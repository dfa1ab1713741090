// SPDX-License-Identifier: MIT
#pragma once

#include "output/json.h"
#include "output/table.h"
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/text/text_rect_comp.h>

#include <string>

namespace HOST {

/// The face that a style is measured with, and the output of both commands that measure.
class Measurement {
public:
    /// Refuses a style that cannot be measured.
    explicit Measurement(const TextInfo& style);

    /// Appends the table, after a line that names the face if it is a substitute.
    void Append(const Table& table, Output& output) const;
    /// Appends an object of the face and a member of that name with the value.
    void Append(const char* name, Json measured, Output& output) const;

private:
    std::string m_Asked;  // in single-byte characters
    PLATFORM::FontMatch m_Face;
};

/// A length for a person, to the thousandth.
[[nodiscard]] std::string LengthText(double length);
/// The corners "x,y" in their order.
[[nodiscard]] std::string CornersText(const TextRectComp::Rect& rect);
/// Adds the members "width", "height" and "corners" to an object.
void AddRect(const TextRectComp::Rect& rect, Json& json);

}  // namespace HOST
