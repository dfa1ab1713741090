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
/// title.SetStyle(TextInfo::BOLD | TextInfo::ITALIC);
/// assert(title.ToString() == "Times,2.5,3,0,0,0,0,0,0,0");
/// TextInfo read;
/// read.FromString(title.ToString());
/// assert(read == title);
/// @endcode
class MARLIN_API TextInfo {
public:
    /// Bits; any combination from 0 to 7.
    enum STYLE : int {
        BOLD = 1,       ///< weight 700 instead of 400
        ITALIC = 2,     ///< slanted
        UNDERLINE = 4,  ///< with a line below
    };
    /// Both styles at once.
    friend constexpr STYLE operator|(STYLE a, STYLE b) noexcept {
        return static_cast<STYLE>(static_cast<int>(a) | static_cast<int>(b));
    }
    /// Codes to which the host gives a meaning.
    enum ANNOTATION : int {
        ANNOTATION_0 = 0,  ///< the default
        ANNOTATION_1 = 1,  ///< as the host says
        ANNOTATION_2 = 2,  ///< as the host says
        ANNOTATION_3 = 3,  ///< as the host says
    };
    /// The point of the text's box that lies on the anchor. 0 to 7 go round the box,
    /// counter-clockwise.
    enum JUSTIFICATION : int {
        BOTTOM_LEFT = 0,       ///< the lower left corner
        BOTTOM_CENTER = 1,     ///< the middle of the lower side
        BOTTOM_RIGHT = 2,      ///< the lower right corner
        MIDDLE_RIGHT = 3,      ///< the middle of the right side
        TOP_RIGHT = 4,         ///< the upper right corner
        TOP_CENTER = 5,        ///< the middle of the upper side
        TOP_LEFT = 6,          ///< the upper left corner
        MIDDLE_LEFT = 7,       ///< the middle of the left side
        MIDDLE_CENTER = 8,     ///< the centre
        BASELINE_LEFT = 9,     ///< the left end of the line that the letters stand on
        BASELINE_CENTER = 10,  ///< the middle of that line
        BASELINE_RIGHT = 11,   ///< the right end of that line
    };

    TextInfo() = default;

    /// The name of the face; empty only where a text says so.
    [[nodiscard]] const std::string& Font() const noexcept { return m_Font; }
    /// The height of the characters in plot units; negative where a text says so.
    [[nodiscard]] float Size() const noexcept { return m_Size; }
    /// 0 to 7, a sum of bits.
    [[nodiscard]] STYLE Style() const noexcept { return m_Style; }
    /// 0 to 3, a code of the host.
    [[nodiscard]] ANNOTATION Annotation() const noexcept { return m_Annotation; }
    /// In degrees, clockwise when y points up.
    [[nodiscard]] const Angle& Rotation() const noexcept { return m_Rotation; }
    /// One of the twelve, unless a host has stored another number.
    [[nodiscard]] JUSTIFICATION Justification() const noexcept { return m_Justification; }
    /// A color word of 32 bits: red is the lowest byte.
    [[nodiscard]] const unsigned long& Color() const noexcept { return m_Color; }
    /// The width in plot units into which a text of several lines is fitted; negative where a text
    /// says so.
    [[nodiscard]] float RectWidth() const noexcept { return m_RectWidth; }
    /// Whether the text is broken into lines.
    [[nodiscard]] bool MultiLine() const noexcept { return m_MultiLine; }

    /// Stores "Arial" for an empty name.
    void SetFont(const std::string& font);
    /// Stores the absolute value.
    void SetSize(float size) noexcept { m_Size = std::fabs(size); }
    /// Stores the bits unchecked.
    void SetStyle(STYLE style) noexcept { m_Style = style; }
    /// Stores the code unchecked.
    void SetAnnotation(ANNOTATION annotation) noexcept { m_Annotation = annotation; }
    /// In degrees, clockwise when y points up.
    void SetRotation(const Angle& rotation) noexcept { m_Rotation = rotation; }
    /// Stores the number unchecked.
    void SetJustification(JUSTIFICATION justification) noexcept { m_Justification = justification; }
    /// Stores the lower 32 bits.
    void SetColor(const unsigned long& color) noexcept { m_Color = color & 0xFFFFFFFF; }
    /// Stores the absolute value.
    void SetRectWidth(float width) noexcept { m_RectWidth = std::fabs(width); }
    /// True has the text broken into lines.
    void SetMultiLine(bool multiLine) noexcept { m_MultiLine = multiLine; }

    /// The flags for `SetTextAlign`, which knows no middle: it counts as the bottom.
    [[nodiscard]] int WinAlignment() const noexcept;
    /// The group code 72 of a DXF TEXT entity: 0 left, 1 centre, 2 right.
    [[nodiscard]] int AcadHJust() const noexcept;
    /// The group code 73 of a DXF TEXT entity: 0 baseline, 1 bottom, 2 middle, 3 top.
    [[nodiscard]] int AcadVJust() const noexcept;
    /// The group code 71 of a DXF MTEXT entity, 1 to 9 row by row from the top left. It knows no
    /// baseline, which counts as the bottom.
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
