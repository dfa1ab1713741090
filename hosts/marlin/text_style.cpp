// SPDX-License-Identifier: MIT
#include "text_style.h"

#include "input.h"
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

namespace HOST {

namespace {

constexpr std::array<std::string_view, 12> justifications = {
    "bottom-left",   "bottom-center", "bottom-right",    "middle-right",
    "top-right",     "top-center",    "top-left",        "middle-left",
    "middle-center", "baseline-left", "baseline-center", "baseline-right",
};

ErrorString NotA(std::string_view option, const std::string& text, std::string_view forms) {
    return ErrorString(std::string(option) + ": \"" + text + "\" is not " + std::string(forms));
}

// The functions below leave the target for an option that was not given.

ErrorString ParseLength(std::string_view option, const std::string& text,
                        std::optional<float>& length) {
    float value = 0.0F;
    if (text.empty()) {
        return {};
    }
    if (!MARLINSUITE::ParseWhole(text, value) || !std::isfinite(value) || value <= 0.0F) {
        return NotA(option, text, "a number above 0");
    }
    length = value;
    return {};
}

ErrorString ParseCode(std::string_view option, const std::string& text, int largest, int& code) {
    int value = 0;
    if (text.empty()) {
        return {};
    }
    if (!MARLINSUITE::ParseWhole(text, value) || value < 0 || value > largest) {
        std::string forms = "a whole number from 0 to ";
        MARLINSUITE::AppendNumber(forms, largest);
        return NotA(option, text, forms);
    }
    code = value;
    return {};
}

ErrorString ParseRotation(const std::string& text, TextInfo& style) {
    double degrees = 0;
    if (text.empty()) {
        return {};
    }
    if (!MARLINSUITE::ParseWhole(text, degrees) || !std::isfinite(degrees)) {
        return NotA("--rotate", text, "a number of degrees");
    }
    style.SetRotation(degrees);
    return {};
}

ErrorString ParseJustification(const std::string& text, TextInfo& style) {
    const auto* const name = std::ranges::find_if(justifications, [&text](std::string_view entry) {
        return PLATFORM::EqualIgnoringCase(entry, text);
    });
    int code = static_cast<int>(name - justifications.begin());
    if (name == justifications.end()) {
        code = style.Justification();
        if (!ParseCode("--justify", text, TextInfo::BASELINE_RIGHT, code).Empty()) {
            return NotA("--justify", text,
                        "0 to 11 or bottom, middle, top or baseline, then -left, -center or "
                        "-right");
        }
    }
    style.SetJustification(static_cast<TextInfo::JUSTIFICATION>(code));
    return {};
}

ErrorString ParseFont(const std::string& argument, TextInfo& style) {
    std::string font;
    ErrorString error = TextOfArgument(argument, font);
    if (error.Empty()) {
        style.SetFont(font);
    }
    return error;
}

// Corners are exact to a billionth; what rotations leave below it is no position. No "-0".
double WithoutNoise(double coordinate) {
    constexpr double parts = 1e9;
    return std::round(coordinate * parts) / parts + 0.0;
}

}  // namespace

ErrorString ParseTextStyle(const TextArguments& arguments, TextInfo& style) {
    std::optional<float> size;
    std::optional<float> wrap;
    for (const ErrorString& error :
         {ParseFont(arguments.Font, style), ParseLength("--size", arguments.Size, size),
          ParseJustification(arguments.Justification, style),
          ParseRotation(arguments.Rotation, style), ParseLength("--wrap", arguments.Wrap, wrap)}) {
        if (!error.Empty()) {
            return error;
        }
    }
    style.SetSize(size.value_or(style.Size()));
    style.SetMultiLine(wrap.has_value());
    style.SetRectWidth(wrap.value_or(0.0F));
    style.SetStyle(static_cast<TextInfo::STYLE>((arguments.IsBold ? TextInfo::BOLD : 0) |
                                                (arguments.IsItalic ? TextInfo::ITALIC : 0)));
    return {};
}

ErrorString ParseLabelStyle(const TextArguments& arguments, DepthLabelInfo& style) {
    int presentation = style.Presentation();
    int placement = style.Placement();
    int precision = style.Precision();
    for (const ErrorString& error :
         {ParseTextStyle(arguments, style),
          ParseCode("--presentation", arguments.Presentation, 4, presentation),
          ParseCode("--placement", arguments.Placement, 2, placement),
          ParseCode("--precision", arguments.Precision, TextRectComp::MaxDecimals, precision)}) {
        if (!error.Empty()) {
            return error;
        }
    }
    style.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(presentation));
    style.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(placement));
    style.SetPrecision(precision);
    return {};
}

ErrorString FindFace(const TextInfo& style, PLATFORM::FontMatch& face) {
    const int weight = (style.Style() & TextInfo::BOLD) != 0 ? 700 : 400;
    const bool isItalic = (style.Style() & TextInfo::ITALIC) != 0;
    if (!PLATFORM::FontCatalog::Find(style.Font().c_str(), weight, isItalic, face)) {
        return ErrorString("no font can be measured for \"" + style.Font() + "\"");
    }
    TextRectComp rects;
    static_cast<void>(rects(style, "0"));
    if (rects.GetNumberOfSubStrings() == 0) {
        std::string cause = "\"" + style.Font() + "\" cannot be measured at size ";
        MARLINSUITE::AppendShortest(cause, style.Size());
        return ErrorString(cause);
    }
    return {};
}

void AppendSubstitution(const TextInfo& style, const PLATFORM::FontMatch& face, std::string& text) {
    if (face.Substituted) {
        text += Shown(style.Font()) + " is missing; measured with " + Printable(face.Family) + "\n";
    }
}

void AppendFace(const TextInfo& style, const PLATFORM::FontMatch& face, JsonWriter& json) {
    json.Name("font").BeginObject().Name("asked").Text(PLATFORM::ToUtf8(style.Font()));
    json.Name("family").Text(face.Family).Name("style").Text(face.Style);
    json.Name("substituted").Bool(face.Substituted).EndObject();
}

std::string LengthText(double length) {
    std::string text;
    MARLINSUITE::AppendFixed(text, length, 3);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string CornersText(const TextRectComp::Rect& rect) {
    std::string text;
    for (const auto& corner : rect.points) {
        text += text.empty() ? "" : "  ";
        text += LengthText(corner.x) + "," + LengthText(corner.y);
    }
    return text;
}

void AppendRect(const TextRectComp::Rect& rect, JsonWriter& json) {
    json.Name("width").Number(rect.width).Name("height").Number(rect.height);
    json.Name("corners").BeginArray();
    for (const auto& corner : rect.points) {
        json.BeginObject().Name("x").Number(WithoutNoise(corner.x));
        json.Name("y").Number(WithoutNoise(corner.y)).EndObject();
    }
    json.EndArray();
}

}  // namespace HOST
