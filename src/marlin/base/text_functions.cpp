// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <limits>

namespace {

// The sign of the number that a text begins with; 0 without one.
int SignOf(std::string_view text, bool pointMayLead) noexcept {
    text.remove_prefix(static_cast<std::size_t>(
        std::ranges::find_if_not(text, MARLINSUITE::IsBlank) - text.begin()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (pointMayLead && text.starts_with('.')) {
        text.remove_prefix(1);
    }
    if (text.empty() || !MARLINSUITE::IsDigit(text.front())) {
        return 0;
    }
    return negative ? -1 : 1;
}

// A number that cannot be parsed, though there is one, lies beyond a limit of the type.
template <class T>
T LeadingNumber(const std::string& text, bool pointMayLead, T lowest, T highest) noexcept {
    T value = 0;
    if (!MARLINSUITE::ParseNumber(text, value)) {
        const int sign = SignOf(text, pointMayLead);
        value = sign < 0 ? lowest : sign > 0 ? highest : T{0};
    }
    return value;
}

template <class T>
CString& AppendItem(CString& text, T value) {
    std::string item;
    if constexpr (std::is_same_v<T, float>) {
        MARLINSUITE::AppendShortest(item, value);
    } else {
        MARLINSUITE::AppendNumber(item, value);
    }
    return text += item.c_str();
}

}  // namespace

bool icompare(std::string_view a, std::string_view b) noexcept {
    return MARLINSUITE::EqualIgnoringCase(a, b);
}

bool Smaller(std::string_view a, std::string_view b) noexcept {
    return MARLINSUITE::CompareIgnoringCase(a, b) < 0;
}

bool Greater(std::string_view a, std::string_view b) noexcept {
    return Smaller(b, a);
}

void trim(std::string& text, std::string characters) {
    text.erase(text.find_last_not_of(characters) + 1);
    text.erase(0, text.find_first_not_of(characters));
}

int atoi(const std::string& text) noexcept {
    using Limits = std::numeric_limits<int>;
    return LeadingNumber(text, false, Limits::min(), Limits::max());
}

double atof(const std::string& text) noexcept {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return LeadingNumber(text, true, -infinity, infinity);
}

CString& operator<<(CString& text, bool value) {
    return AppendItem(text, value);
}

CString& operator<<(CString& text, int value) {
    return AppendItem(text, value);
}

CString& operator<<(CString& text, unsigned long value) {
    return AppendItem(text, value);
}

CString& operator<<(CString& text, float value) {
    return AppendItem(text, value);
}

CString& operator<<(CString& text, const char* value) {
    return text += value;
}

CString& operator<<(CString& text, const CString& value) {
    return text += value;
}
