// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/angle.h>
#include <marlin/records/record_field.h>

#include <cmath>
#include <string>

class FormatString;

// The destructor is not virtual: a record is deleted as what it was made.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// How one piece of plot text looks and where it hangs on its anchor point. By default black
/// Arial of size 2.5, upright, its box's lower left corner on the anchor. Sizes and widths are in
/// plot units, the size being the height of the characters. Setters check only what they say.
class MARLIN_API TextInfo {
public:
    /// Bits; any combination from 0 to 7.
    enum STYLE : int {
        BOLD = 1,
        ITALIC = 2,
        UNDERLINE = 4,
    };
    /// Values that are the hosts' own.
    enum ANNOTATION : int {
        ANNOTATION_0 = 0,
        ANNOTATION_1 = 1,
        ANNOTATION_2 = 2,
        ANNOTATION_3 = 3,
    };
    /// The point of the text's box that lies on the anchor.
    enum JUSTIFICATION : int {
        BOTTOM_LEFT = 0,
        BOTTOM_CENTER = 1,
        BOTTOM_RIGHT = 2,
        MIDDLE_RIGHT = 3,
        TOP_RIGHT = 4,
        TOP_CENTER = 5,
        TOP_LEFT = 6,
        MIDDLE_LEFT = 7,
        MIDDLE_CENTER = 8,
        BASELINE_LEFT = 9,
        BASELINE_CENTER = 10,
        BASELINE_RIGHT = 11,
    };

    TextInfo() = default;

    [[nodiscard]] const std::string& Font() const noexcept { return m_Font; }
    [[nodiscard]] float Size() const noexcept { return m_Size; }
    [[nodiscard]] STYLE Style() const noexcept { return m_Style; }
    [[nodiscard]] ANNOTATION Annotation() const noexcept { return m_Annotation; }
    [[nodiscard]] const Angle& Rotation() const noexcept { return m_Rotation; }
    [[nodiscard]] JUSTIFICATION Justification() const noexcept { return m_Justification; }
    [[nodiscard]] const unsigned long& Color() const noexcept { return m_Color; }
    /// The width into which a text of several lines is fitted.
    [[nodiscard]] float RectWidth() const noexcept { return m_RectWidth; }
    [[nodiscard]] bool MultiLine() const noexcept { return m_MultiLine; }

    /// "Arial" for an empty name.
    void SetFont(const std::string& font);
    /// Stores the absolute value.
    void SetSize(float size) noexcept { m_Size = std::fabs(size); }
    void SetStyle(STYLE style) noexcept { m_Style = style; }
    void SetAnnotation(ANNOTATION annotation) noexcept { m_Annotation = annotation; }
    void SetRotation(const Angle& rotation) noexcept { m_Rotation = rotation; }
    void SetJustification(JUSTIFICATION justification) noexcept { m_Justification = justification; }
    void SetColor(const unsigned long& color) noexcept { m_Color = color; }
    /// Stores the absolute value.
    void SetRectWidth(float width) noexcept { m_RectWidth = std::fabs(width); }
    void SetMultiLine(bool multiLine) noexcept { m_MultiLine = multiLine; }

    /// The flags of `SetTextAlign`, where the middle counts as the bottom.
    [[nodiscard]] int WinAlignment() const noexcept;
    /// The group codes 72 and 73 of a DXF TEXT entity.
    [[nodiscard]] int AcadHJust() const noexcept;
    [[nodiscard]] int AcadVJust() const noexcept;
    /// The group code 71 of a DXF MTEXT entity, where the baseline counts as the bottom.
    [[nodiscard]] int AcadAttachmentPoint() const noexcept;
    /// `BOTTOM_LEFT` for a value outside 1 to 9.
    void AcadAttachmentPoint(int attachmentPoint) noexcept;
    /// From the group codes 72 and 73; `BOTTOM_LEFT` for those without a counterpart.
    void FromAcadJust(int h, int v) noexcept;

    /// Turns the text by 180 degrees where it would read upside down in a view whose up direction
    /// is the angle: from a difference of 90 on, up to but not 270.
    void OptTextAngle(Angle view) noexcept;
    /// A copy turned by the same rule, with the anchor moved to the opposite side of its box if
    /// it was turned.
    [[nodiscard]] TextInfo OptTextAngleJust(Angle view) const;

    /// The order of the font cache: font name ignoring case, then size, then style. Records that
    /// differ only elsewhere are equivalent.
    bool operator<(const TextInfo& other) const noexcept;
    /// Font names ignoring case, rotations with the tolerance of `Angle`, all else exactly.
    bool operator==(const TextInfo& other) const noexcept;

    /// "font,size,style,justification,palette index,rotation,rect width,multi-line,annotation,
    /// color word", numbers with six significant digits.
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults. Items that are missing, or styles, justifications and annotations
    /// out of range, leave them; other items that are no number count as 0. The color word, when
    /// there is one, wins over the palette index. Sizes keep their sign.
    void FromString(const std::string& text);
    /// The items in the order of `ToString` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

protected:
    /// Reads the items that there are and returns the index of the first one that is not the
    /// record's: 10, or 9 for a list of 14, which has no color word.
    virtual int FromString(const FormatString& items);

private:
    template <class Items>
    void ForEachItem(Items& items);

    std::string m_Font = "Arial";
    float m_Size = 2.5F;
    STYLE m_Style = STYLE{0};
    ANNOTATION m_Annotation = ANNOTATION_0;
    Angle m_Rotation;
    JUSTIFICATION m_Justification = BOTTOM_LEFT;
    unsigned long m_Color = 0;
    float m_RectWidth = 0.0F;
    bool m_MultiLine = false;
};

#pragma GCC diagnostic pop
