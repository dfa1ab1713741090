// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/core/ascii.h>
#include <marlin/records/detail/style_items.h>
#include <marlin/records/text_info.h>

#include <array>
#include <cstddef>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

constexpr NamedValue styles[] = {
    {0, "", "upright"},
    {TextInfo::BOLD, "", "bold"},
    {TextInfo::ITALIC, "", "italic"},
    {TextInfo::UNDERLINE, "", "underlined"},
};

constexpr NamedValue justifications[] = {
    {TextInfo::BOTTOM_LEFT, "", "bottom left"},
    {TextInfo::BOTTOM_CENTER, "", "bottom center"},
    {TextInfo::BOTTOM_RIGHT, "", "bottom right"},
    {TextInfo::MIDDLE_RIGHT, "", "middle right"},
    {TextInfo::TOP_RIGHT, "", "top right"},
    {TextInfo::TOP_CENTER, "", "top center"},
    {TextInfo::TOP_LEFT, "", "top left"},
    {TextInfo::MIDDLE_LEFT, "", "middle left"},
    {TextInfo::MIDDLE_CENTER, "", "middle center"},
    {TextInfo::BASELINE_LEFT, "", "baseline left"},
    {TextInfo::BASELINE_CENTER, "", "baseline center"},
    {TextInfo::BASELINE_RIGHT, "", "baseline right"},
};

constexpr TextInfo::STYLE AllStyles = TextInfo::BOLD | TextInfo::ITALIC | TextInfo::UNDERLINE;

constexpr int NumItems = 10;
// A record that extends this one once wrote 14 items, none of them a color word.
constexpr int NumItemsOfOlderLayout = 14;

// The codes of one justification, and the one across the box.
struct Codes {
    int Win;
    int AcadH;
    int AcadV;
    int AcadAttachment;
    TextInfo::JUSTIFICATION Opposite;
};

constexpr std::array<Codes, 12> CodesOf{{
    {8, 0, 1, 7, TextInfo::TOP_RIGHT},
    {14, 1, 1, 8, TextInfo::TOP_CENTER},
    {10, 2, 1, 9, TextInfo::TOP_LEFT},
    {10, 2, 2, 6, TextInfo::MIDDLE_LEFT},
    {2, 2, 3, 3, TextInfo::BOTTOM_LEFT},
    {6, 1, 3, 2, TextInfo::BOTTOM_CENTER},
    {0, 0, 3, 1, TextInfo::BOTTOM_RIGHT},
    {8, 0, 2, 4, TextInfo::MIDDLE_RIGHT},
    {14, 1, 2, 5, TextInfo::MIDDLE_CENTER},
    {24, 0, 0, 7, TextInfo::TOP_RIGHT},
    {30, 1, 0, 8, TextInfo::TOP_CENTER},
    {26, 2, 0, 9, TextInfo::TOP_LEFT},
}};

bool IsKnown(TextInfo::JUSTIFICATION justification) noexcept {
    return static_cast<std::size_t>(justification) < CodesOf.size();
}

// Any other value counts as the left end of the baseline, and as the top left of an MTEXT.
Codes Find(TextInfo::JUSTIFICATION justification) noexcept {
    return IsKnown(justification) ? CodesOf[static_cast<std::size_t>(justification)]
                                  : Codes{24, 0, 0, 1, justification};
}

}  // namespace

void TextInfo::SetFont(const std::string& font) {
    m_Font = font.empty() ? "Arial" : font;
}

// A font depends on these three fields alone, so texts that differ elsewhere share one.
bool TextInfo::operator<(const TextInfo& other) const noexcept {
    // Styles of one font are the most frequent, and equal bytes are found much faster.
    const int order =
        m_Font == other.m_Font ? 0 : MARLINSUITE::CompareIgnoringCase(m_Font, other.m_Font);
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

int TextInfo::WinAlignment() const noexcept {
    return Find(m_Justification).Win;
}

int TextInfo::AcadHJust() const noexcept {
    return Find(m_Justification).AcadH;
}

int TextInfo::AcadVJust() const noexcept {
    return Find(m_Justification).AcadV;
}

int TextInfo::AcadAttachmentPoint() const noexcept {
    return Find(m_Justification).AcadAttachment;
}

void TextInfo::AcadAttachmentPoint(int attachmentPoint) noexcept {
    constexpr std::array<JUSTIFICATION, 9> known{TOP_LEFT,    TOP_CENTER,    TOP_RIGHT,
                                                 MIDDLE_LEFT, MIDDLE_CENTER, MIDDLE_RIGHT,
                                                 BOTTOM_LEFT, BOTTOM_CENTER, BOTTOM_RIGHT};
    const bool valid = attachmentPoint >= 1 && attachmentPoint <= 9;
    m_Justification = valid ? known[static_cast<std::size_t>(attachmentPoint) - 1] : BOTTOM_LEFT;
}

void TextInfo::FromAcadJust(int h, int v) noexcept {
    constexpr std::array<std::array<JUSTIFICATION, 3>, 4> known{{
        {BASELINE_LEFT, BASELINE_CENTER, BASELINE_RIGHT},
        {BOTTOM_LEFT, BOTTOM_CENTER, BOTTOM_RIGHT},
        {MIDDLE_LEFT, MIDDLE_CENTER, MIDDLE_RIGHT},
        {TOP_LEFT, TOP_CENTER, TOP_RIGHT},
    }};
    // The codes are looked up as one number, so those beyond their range carry into the next row.
    const long long code = h + 10LL * v;
    const long long row = code / 10;
    const long long column = code % 10;
    if (code >= 0 && row < 4 && column < 3) {
        m_Justification = known[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    } else {
        m_Justification = code == 4 ? BOTTOM_CENTER : BOTTOM_LEFT;
    }
}

void TextInfo::OptTextAngle(Angle view) noexcept {
    const Angle d = m_Rotation - view;
    if (d >= 90.0 && d < 270.0) {
        m_Rotation += 180.0;
    }
}

TextInfo TextInfo::OptTextAngleJust(Angle view) const {
    TextInfo turned = *this;
    turned.OptTextAngle(view);
    const Angle d = m_Rotation - view;
    if (d >= 90.0 && d < 270.0) {
        turned.m_Justification = Find(m_Justification).Opposite;
    }
    return turned;
}

template <class Items>
void TextInfo::ForEachItem(Items& items) {
    items({"", 1, "font"}, m_Font);
    items({"", 2, "height of the characters", RecordKey::Plot}, m_Size);
    items({.Field = 3, .Meaning = "style", .Values = styles, .AreBits = true},
          Choice(m_Style, AllStyles));
    items({"", 4, "point of the box on the anchor", "", justifications},
          Choice(m_Justification, BASELINE_RIGHT));
    items({"", 5, "color"}, PaletteIndex(m_Color));
    items({"", 6, "rotation", RecordKey::Degrees}, m_Rotation);
    items({"", 7, "width of the box of a text of several lines", RecordKey::Plot}, m_RectWidth);
    items({"", 8, "several lines"}, m_MultiLine);
    items({"", 9, "annotation code"}, Choice(m_Annotation, ANNOTATION_3));
    // Readers of nine items do not see the exact color, which therefore comes last.
    items({"", 5, "color"}, m_Color);
}

RecordFields TextInfo::Fields() const {
    RecordFields fields;
    StyleLister lister(fields);
    TextInfo(*this).ForEachItem(lister);
    return fields;
}

std::string TextInfo::ToString() const {
    return JoinItems(TextInfo::Fields());
}

void TextInfo::FromString(const std::string& text) {
    // A record that extends this one resets its own fields itself.
    TextInfo::operator=(TextInfo());
    FromString(FormatString(text, ','));
}

int TextInfo::FromString(const FormatString& items) {
    const int end = items.Size() == NumItemsOfOlderLayout ? NumItems - 1 : NumItems;
    StyleReader reader(items, 0, end);
    ForEachItem(reader);
    return end;
}
