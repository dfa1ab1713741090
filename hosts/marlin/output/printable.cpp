// SPDX-License-Identifier: MIT
#include "printable.h"

#include <marlin/base/math.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>

namespace HOST {

namespace {

void AppendEscaped(std::string& text, unsigned char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    text += "\\x";
    text += digits[byte >> 4U];
    text += digits[byte & 0x0FU];
}

}  // namespace

std::string Printable(std::string_view utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const auto next = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : '\0');
        if (byte < 0x20 || byte == 0x7F) {
            AppendEscaped(text, byte);
        } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {  // the upper control characters
            AppendEscaped(text, next);
            ++i;
        } else {
            text += utf8[i];
        }
    }
    return text;
}

std::string Shown(std::string_view text) {
    return Printable(AsUtf8(text));
}

std::string AsUtf8(std::string_view bytes) {
    return PLATFORM::ToUtf8(bytes);
}

std::string NumberText(int value) {
    std::string text;
    MARLINSUITE::AppendNumber(text, value);
    return text;
}

std::string NumberText(double value) {
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    return text;
}

std::string NumberText(float value) {
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    return text;
}

std::string PlainText(double value, int decimals) {
    // Beyond its own decimals a large number would show digits that nobody wrote.
    std::string text;
    MARLINSUITE::AppendFixed(text, value, std::min(GetDoublePrecision(value), decimals));
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return text == "-0" ? "0" : text;
}

std::string CountText(std::size_t count, std::string_view unit) {
    std::string text;
    MARLINSUITE::AppendNumber(text, static_cast<unsigned long>(count));
    return text.append(" ").append(unit).append(count == 1 ? "" : "s");
}

std::string AtLine(const std::string& path, int line, std::string_view cause) {
    const std::string place = line > 0 ? path + ":" + NumberText(line) : path;
    return place + ": " + std::string(cause);
}

}  // namespace HOST
