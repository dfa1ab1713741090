// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>
#include <marlin/records/text_info.h>

namespace {

// What 14 items are: an older layout of a record that extends this one.
constexpr int ItemsOfOlderLayout = 14;

std::string General(double value) {
    std::string text;
    MARLINSUITE::AppendGeneral(text, value);
    return text;
}

std::string Whole(int value) {
    std::string text;
    MARLINSUITE::AppendNumber(text, value);
    return text;
}

std::string Word(unsigned long value) {
    std::string text;
    MARLINSUITE::AppendNumber(text, value);
    return text;
}

// The word's bits, whether they are written as a signed or as an unsigned number.
unsigned long ReadWord(const std::string& text) noexcept {
    unsigned long word = 0;
    return MARLINSUITE::ParseNumber(text, word) ? word : static_cast<unsigned int>(atoi(text));
}

// Takes an item that is a value of an enumeration, 0 to `last`.
template <typename Enumeration>
void ReadChoice(const std::string& text, int last, Enumeration& target) noexcept {
    const int value = atoi(text);
    if (value >= 0 && value <= last) {
        target = static_cast<Enumeration>(value);
    }
}

}  // namespace

void TextInfo::SetFont(const std::string& font) {
    m_Font = font.empty() ? "Arial" : font;
}

void TextInfo::OptTextAngle(Angle view) noexcept {
    const Angle d = m_Rotation - view;
    if (d >= 90.0 && d < 270.0) {
        m_Rotation += 180.0;
    }
}

bool TextInfo::operator<(const TextInfo& other) const noexcept {
    const int order = PLATFORM::CompareIgnoringCase(m_Font, other.m_Font);
    if (order != 0) {
        return order < 0;
    }
    return m_Size < other.m_Size || (m_Size == other.m_Size && m_Style < other.m_Style);
}

bool TextInfo::operator==(const TextInfo& other) const noexcept {
    return icompare(m_Font, other.m_Font) && m_Size == other.m_Size && m_Style == other.m_Style &&
           m_Annotation == other.m_Annotation && m_Rotation == other.m_Rotation &&
           m_Color == other.m_Color && m_Justification == other.m_Justification &&
           m_RectWidth == other.m_RectWidth && m_MultiLine == other.m_MultiLine;
}

std::string TextInfo::ToString() const {
    FormatString items(',');
    items += m_Font;
    items += General(m_Size);
    items += Whole(m_Style);
    items += Whole(m_Justification);
    items += Whole(DXFColor(m_Color).Index());
    items += General(m_Rotation.Get());
    items += General(m_RectWidth);
    items += m_MultiLine ? "1" : "0";
    items += Whole(m_Annotation);
    items += Word(m_Color);
    return items.String();
}

void TextInfo::FromString(const std::string& text) {
    TextInfo::operator=(TextInfo());
    FromString(FormatString(text, ','));
}

int TextInfo::FromString(const FormatString& items) {
    // Reads an item if the list is long enough to hold it.
    const auto read = [&](int index, auto take) {
        if (index < items.Size()) {
            take(items[index]);
        }
    };
    using Text = const std::string&;
    read(0, [&](Text t) { m_Font = t; });
    read(1, [&](Text t) { m_Size = static_cast<float>(atof(t)); });
    read(2, [&](Text t) { ReadChoice(t, BOLD | ITALIC | UNDERLINE, m_Style); });
    read(3, [&](Text t) { ReadChoice(t, BASELINE_RIGHT, m_Justification); });
    read(4, [&](Text t) { m_Color = static_cast<unsigned long>(DXFColor(atoi(t))); });
    read(5, [&](Text t) { m_Rotation = Angle(atof(t)); });
    read(6, [&](Text t) { m_RectWidth = static_cast<float>(atof(t)); });
    read(7, [&](Text t) { m_MultiLine = atoi(t) != 0; });
    read(8, [&](Text t) { ReadChoice(t, ANNOTATION_3, m_Annotation); });
    if (items.Size() == ItemsOfOlderLayout) {
        return 9;
    }
    read(9, [&](Text t) { m_Color = ReadWord(t); });
    return 10;
}
