// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>
#include <marlin/contours/detail/contour_sections.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace MARLINSUITE {

namespace {

int LineTypeOf(std::string_view text) noexcept {
    const auto* const end = std::end(ContourDefinitionList::LINESTYLES);
    const auto* const found =
        std::find_if(std::begin(ContourDefinitionList::LINESTYLES), end,
                     [text](const std::string& name) { return icompare(text, name); });
    return found == end ? 0 : static_cast<int>(found - ContourDefinitionList::LINESTYLES);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), PLATFORM::ToLower);
    return lower;
}

}  // namespace

ContourSection::KEY ContourSection::KeyOf(std::string_view name) noexcept {
    static constexpr std::pair<std::string_view, KEY> keys[] = {
        {"Level", LEVEL},        {"Color", COLOR},          {"TrueColor", TRUE_COLOR},
        {"LineType", LINE_TYPE}, {"LineWidth", LINE_WIDTH}, {"Annotate", ANNOTATE},
    };
    for (const auto& [text, key] : keys) {
        if (PLATFORM::EqualIgnoringCase(name, text)) {
            return key;
        }
    }
    return UNKNOWN;
}

void ContourSection::AddKey(std::string_view name, std::string_view value) {
    const KEY key = KeyOf(name);
    if ((m_Seen & key) != 0) {
        return;
    }
    m_Seen = static_cast<unsigned char>(m_Seen | key);
    if (ReadValue(key, value)) {
        m_Readable = static_cast<unsigned char>(m_Readable | key);
    }
}

bool ContourSection::ReadValue(KEY key, std::string_view value) noexcept {
    switch (key) {
        case LEVEL:
            return ParseNumber(value, m_Values.Level);
        case COLOR:
            return ParseNumber(value, m_PaletteIndex);
        case TRUE_COLOR:
            return ParseNumber(value, m_Values.Color);
        case LINE_TYPE:
            m_Values.LineType = LineTypeOf(value);
            return true;
        case LINE_WIDTH:
            return ParseNumber(value, m_Values.LineWidth);
        case ANNOTATE:
            return ParseNumber(value, m_Values.Annotate);
        case UNKNOWN:
            break;
    }
    return false;
}

void ContourSection::Apply(ContourDefinitionList::ContourDefInfo& definition,
                           int& paletteIndex) const {
    if (Has(COLOR)) {
        paletteIndex = m_PaletteIndex;
    }
    definition.Color =
        Has(TRUE_COLOR) ? m_Values.Color : static_cast<unsigned long>(DXFColor(paletteIndex));
    definition.LineType = m_Values.LineType;
    if (Has(ANNOTATE)) {
        definition.Annotate = m_Values.Annotate;
    }
    if (Has(LEVEL)) {
        definition.Level = m_Values.Level;
    }
    if (Has(LINE_WIDTH)) {
        definition.LineWidth = m_Values.LineWidth;
    }
}

// "Contour(n)" with n as it is written: "Contour(01)" is another name. Numbers of ten and more
// digits are never reached.
std::optional<std::size_t> ContourSections::NumberOf(std::string_view name) noexcept {
    constexpr std::string_view start = "Contour(";
    constexpr std::size_t mostDigits = 9;
    if (name.size() < start.size() + 2 || name.back() != ')' ||
        !PLATFORM::EqualIgnoringCase(name.substr(0, start.size()), start)) {
        return std::nullopt;
    }
    const std::string_view digits = name.substr(start.size(), name.size() - start.size() - 1);
    if (digits.size() > mostDigits || (digits.size() > 1 && digits.front() == '0')) {
        return std::nullopt;
    }
    std::size_t number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = number * 10 + static_cast<std::size_t>(digit - '0');
    }
    return number;
}

bool ContourSections::BeginSection(std::string_view name, std::string_view /*comments*/) {
    const std::optional<std::size_t> number = NumberOf(name);
    if (number ? Find(*number) != nullptr : !m_OtherNames.insert(LowerCase(name)).second) {
        return false;
    }
    ++m_Count;
    m_Current = nullptr;
    if (number) {
        m_CurrentNumber = *number;
        m_Current =
            *number == m_InOrder.size() ? &m_InOrder.emplace_back() : &m_OutOfOrder[*number];
    }
    return true;
}

void ContourSections::AddKey(std::string_view name, std::string_view value,
                             std::string_view /*comments*/) {
    if (m_Current) {
        m_Current->AddKey(name, value);
    }
}

void ContourSections::DropSection() {
    --m_Count;
    if (!m_Current) {
        return;
    }
    if (m_OutOfOrder.erase(m_CurrentNumber) == 0) {
        m_InOrder.pop_back();
    }
    m_Current = nullptr;
}

const ContourSection* ContourSections::Find(std::size_t n) const noexcept {
    if (n < m_InOrder.size()) {
        return &m_InOrder[n];
    }
    const auto found = m_OutOfOrder.find(n);
    return found == m_OutOfOrder.end() ? nullptr : &found->second;
}

}  // namespace MARLINSUITE
