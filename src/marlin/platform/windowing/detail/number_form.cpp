// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/number_form.h>

#include <array>
#include <charconv>
#include <cmath>

namespace PLATFORM {

namespace {

constexpr std::string_view blanks = " \t";

std::string_view Trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+';
    return hasPlus ? text.substr(1) : text;
}

template <typename Real>
bool Parse(std::string_view text, Real& value) noexcept {
    const std::string_view number = Trimmed(text);
    Real read = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), read);
    if (error != std::errc() || end != number.data() + number.size() || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

std::string Text(double value, int digits) {
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                            std::chars_format::general, digits);
    return error == std::errc() ? std::string(text.data(), end) : std::string();
}

}  // namespace

bool ParseReal(std::string_view text, double& value) noexcept {
    return Parse(text, value);
}

bool ParseReal(std::string_view text, float& value) noexcept {
    return Parse(text, value);
}

std::string RealText(double value) {
    return Text(value, 15);
}

std::string RealText(float value) {
    return Text(static_cast<double>(value), 6);
}

}  // namespace PLATFORM
