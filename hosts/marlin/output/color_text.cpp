// SPDX-License-Identifier: MIT
#include "color_text.h"

#include "printable.h"

#include <string_view>

namespace HOST {

std::string ColorText(const RGBColor& color) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const int level : {color.Red(), color.Green(), color.Blue()}) {
        text += digits[static_cast<std::size_t>(level >> 4)];
        text += digits[static_cast<std::size_t>(level & 0x0F)];
    }
    return text;
}

std::string Swatch(const RGBColor& color) {
    std::string text = "\x1B[48;2";
    for (const int level : {color.Red(), color.Green(), color.Blue()}) {
        text += ";" + NumberText(level);
    }
    return text + "m  \x1B[0m ";
}

}  // namespace HOST
