// SPDX-License-Identifier: MIT
#pragma once

#include "commands.h"
#include "json.h"
#include <marlin/base/error_string.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/text/text_rect_comp.h>

#include <string>

namespace HOST {

/// The options of the text commands as a style. Those that were not given leave its defaults. A
/// failure names the option and what it takes.
[[nodiscard]] ErrorString ParseTextStyle(const TextArguments& arguments, TextInfo& style);
/// The same with the options of depth labels.
[[nodiscard]] ErrorString ParseLabelStyle(const TextArguments& arguments, DepthLabelInfo& style);

/// The face that the style is measured with; a failure where it cannot be measured.
[[nodiscard]] ErrorString FindFace(const TextInfo& style, PLATFORM::FontMatch& face);

/// Says that another face stands for the one that was asked; nothing where it does not.
void AppendSubstitution(const TextInfo& style, const PLATFORM::FontMatch& face, std::string& text);
/// The member "font".
void AppendFace(const TextInfo& style, const PLATFORM::FontMatch& face, JsonWriter& json);

/// A length for the eye, to the thousandth.
[[nodiscard]] std::string LengthText(double length);
/// The corners "x,y" in their order.
[[nodiscard]] std::string CornersText(const TextRectComp::Rect& rect);
/// The members "width", "height" and "corners".
void AppendRect(const TextRectComp::Rect& rect, JsonWriter& json);

}  // namespace HOST
