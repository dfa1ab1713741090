// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/angle.h>
#include <marlin/records/record_field.h>

#include <cmath>
#include <string>

class FormatString;

// The destructor is not virtual, since nobody deletes a record through its base.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// How one piece of plot text looks, and which point of its box lies on its anchor. By default
/// black Arial of size 2.5, upright, the lower left corner on the anchor. The size is the height of
/// the characters; sizes and widths are in plot units. Setters check nothing unless they say so.
///
/// @code
/// TextInfo title;
/// title.SetFont("Times");
/// title.SetStyle(TextInfo::BOLD);
/// assert(title.ToString() == "Times,2.5,1,0,0,0,0,0,0,0");
/// TextInfo read;
/// read.FromString(title.ToString());
/// assert(read == title);
/// @endcode
class MARLIN_API TextInfo {
public:
    /// Bits; any combination from 0 to 7.
    enum STYLE : int {
        BOLD = 1,
        ITALIC = 2,
        UNDERLINE = 4,
    };
    /// Codes to which the host gives a meaning.
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

    /// Stores "Arial" for an empty name.
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

    /// The flags for `SetTextAlign`, which knows no middle: it counts as the bottom.
    [[nodiscard]] int WinAlignment() const noexcept;
    /// The group codes 72 and 73 of a DXF TEXT entity.
    [[nodiscard]] int AcadHJust() const noexcept;
    [[nodiscard]] int AcadVJust() const noexcept;
    /// The group code 71 of a DXF MTEXT entity, which knows no baseline: it counts as the bottom.
    [[nodiscard]] int AcadAttachmentPoint() const noexcept;
    /// Takes the justification of the group code; `BOTTOM_LEFT` for a code outside 1 to 9.
    void AcadAttachmentPoint(int attachmentPoint) noexcept;
    /// Takes the justification of the group codes 72 and 73; `BOTTOM_LEFT` for codes without a
    /// counterpart.
    void FromAcadJust(int h, int v) noexcept;

    /// Turns the text by 180 degrees if it would read upside down in a view whose up direction is
    /// the angle: if the difference of the angles is at least 90 and less than 270 degrees.
    void OptTextAngle(Angle view) noexcept;
    /// Returns a copy turned by the same rule. If it was turned, the opposite point of its box lies
    /// on the anchor.
    [[nodiscard]] TextInfo OptTextAngleJust(Angle view) const;

    /// Orders by font name ignoring case, then size, then style, as the cache of fonts does.
    /// Records that differ only in other fields are equivalent.
    bool operator<(const TextInfo& other) const noexcept;
    /// Compares font names ignoring case, rotations with the tolerance of `Angle`, all other fields
    /// exactly.
    bool operator==(const TextInfo& other) const noexcept;

    /// "font,size,style,justification,palette index,rotation,rect width,multi-line,annotation,
    /// color word", numbers with six significant digits.
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, which stay where an item is missing, or a style, justification or
    /// annotation is out of range; other items that are not a number count as 0. A color word wins
    /// over the palette index. Sizes keep their sign.
    void FromString(const std::string& text);
    /// The items in the order of `ToString`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

protected:
    /// Reads the items of this record, as far as there are any, and returns the index after the
    /// last of them: 10, or 9 for a list of 14, which has no color word.
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
