// SPDX-License-Identifier: MIT
#include "style_options.h"

#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace HOST {

namespace {

constexpr std::array<std::string_view, 12> justifications = {
    "bottom-left",   "bottom-center", "bottom-right",    "middle-right",
    "top-right",     "top-center",    "top-left",        "middle-left",
    "middle-center", "baseline-left", "baseline-center", "baseline-right",
};

template <class NUMBER>
bool ParseFinite(const std::string& text, NUMBER& number) {
    return MARLINSUITE::ParseWhole(text, number) && std::isfinite(number);
}

bool ParseInRange(const std::string& text, int largest, int& code) {
    int value = 0;
    const bool isInRange = MARLINSUITE::ParseWhole(text, value) && value >= 0 && value <= largest;
    code = isInRange ? value : code;
    return isInRange;
}

// The names are in the order of their codes.
TextInfo::JUSTIFICATION ParseJustification(const std::string& text) {
    const auto* const name = std::ranges::find_if(justifications, [&text](std::string_view entry) {
        return MARLINSUITE::EqualIgnoringCase(entry, text);
    });
    int code = static_cast<int>(name - justifications.begin());
    if (name == justifications.end() && !ParseInRange(text, TextInfo::BASELINE_RIGHT, code)) {
        FailOption("--justify", text,
                   "0 to 11 or bottom, middle, top or baseline, then -left, -center or -right");
    }
    return static_cast<TextInfo::JUSTIFICATION>(code);
}

double ParseRotation(const std::string& text) {
    double degrees = 0;
    if (!ParseFinite(text, degrees)) {
        FailOption("--rotate", text, "a number of degrees");
    }
    return degrees;
}

}  // namespace

void ParseLength(std::string_view option, const std::string& text, float& length) {
    float value = length;
    if (!text.empty() && (!ParseFinite(text, value) || value <= 0.0F)) {
        FailOption(option, text, "a number above 0");
    }
    length = value;
}

void ParseCode(std::string_view option, const std::string& text, int largest, int& code) {
    if (!text.empty() && !ParseInRange(text, largest, code)) {
        FailOption(option, text, "a whole number from 0 to " + NumberText(largest));
    }
}

void StyleOptions::Declare(Options& options) {
    options.Option("--font", Font, "Face name; Arial if not given", "NAME");
    options.Option("--size", Size, "Height of the characters; 2.5 if not given", "NUMBER");
    options.Flag("--bold", IsBold, "In its bold face");
    options.Flag("--italic", IsItalic, "In its italic face");
    options.Option("--justify", Justification,
                   "bottom-left to baseline-right, or 0 to 11: the point on the origin", "POINT");
    options.Option("--rotate", Rotation, "Degrees, clockwise", "NUMBER");
}

void StyleOptions::ApplyTo(TextInfo& style) const {
    float size = style.Size();
    style.SetFont(Font);  // Arial for an empty name
    ParseLength("--size", Size, size);
    style.SetSize(size);
    if (!Justification.empty()) {
        style.SetJustification(ParseJustification(Justification));
    }
    if (!Rotation.empty()) {
        style.SetRotation(ParseRotation(Rotation));
    }
    style.SetStyle(static_cast<TextInfo::STYLE>((IsBold ? TextInfo::BOLD : 0) |
                                                (IsItalic ? TextInfo::ITALIC : 0)));
}

}  // namespace HOST
