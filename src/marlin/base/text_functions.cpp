// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <limits>

namespace {

// How a text begins that `ParseNumber` refuses: with no number, or with one out of range.
enum class START { NO_NUMBER, POSITIVE, NEGATIVE };

START StartOf(std::string_view text, bool pointMayLead) noexcept {
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
        return START::NO_NUMBER;
    }
    return negative ? START::NEGATIVE : START::POSITIVE;
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
    int value = 0;
    if (MARLINSUITE::ParseNumber(text, value)) {
        return value;
    }
    switch (StartOf(text, false)) {
        case START::POSITIVE:
            return std::numeric_limits<int>::max();
        case START::NEGATIVE:
            return std::numeric_limits<int>::min();
        case START::NO_NUMBER:
            break;
    }
    return 0;
}

double atof(const std::string& text) noexcept {
    double value = 0.0;
    if (MARLINSUITE::ParseNumber(text, value)) {
        return value;
    }
    switch (StartOf(text, true)) {
        case START::POSITIVE:
            return std::numeric_limits<double>::infinity();
        case START::NEGATIVE:
            return -std::numeric_limits<double>::infinity();
        case START::NO_NUMBER:
            break;
    }
    return 0.0;
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
