// SPDX-License-Identifier: MIT
#include <marlin/records/text_info.h>

#include <array>
#include <cstddef>

namespace {

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

Codes Find(TextInfo::JUSTIFICATION justification) noexcept {
    return IsKnown(justification) ? CodesOf[static_cast<std::size_t>(justification)]
                                  : Codes{24, 0, 0, 1, justification};
}

}  // namespace

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

TextInfo TextInfo::OptTextAngleJust(Angle view) const {
    TextInfo turned = *this;
    turned.OptTextAngle(view);
    const Angle d = m_Rotation - view;
    if (d >= 90.0 && d < 270.0) {
        turned.m_Justification = Find(m_Justification).Opposite;
    }
    return turned;
}
