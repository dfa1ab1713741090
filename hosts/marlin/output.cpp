// SPDX-License-Identifier: MIT
#include "output.h"

#include <marlin/platform/text/code_page.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

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
    return Printable(PLATFORM::ToUtf8(text));
}

std::string AsUtf8(std::string_view bytes) {
    return PLATFORM::IsUtf8(bytes) ? std::string(bytes) : PLATFORM::ToUtf8(bytes);
}

void Report(const std::string& message) {
    const std::string line = "marlin: " + Printable(AsUtf8(message)) + "\n";
    static_cast<void>(std::fputs(line.c_str(), stderr));  // there is nowhere else to say it
}

void Report(const ErrorString& failure) {
    Report(failure.Cause().empty() ? failure.Text() : failure.Cause());
}

int Unusable(const ErrorString& failure) {
    Report(failure);
    return UNUSABLE;
}

int Refused(const std::string& message) {
    Report(message);
    return FOUND;
}

int Finish(const Output& output, int code) {
    errno = 0;
    const bool isWhole =
        std::fwrite(output.Text.data(), 1, output.Text.size(), stdout) == output.Text.size();
    if (std::fflush(stdout) == 0 && isWhole) {
        return code;
    }
    Report("standard output: " + std::generic_category().message(errno));
    return UNUSABLE;
}

}  // namespace HOST
