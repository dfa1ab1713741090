// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/text_info.h>

#include <string>

// The destructor is not virtual, since nobody deletes a record through its base.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The style of the depth numbers of a plot: a text style, the number of decimals, and how a label
/// is laid out and placed. By default 2 decimals, presentation and placement 0, in the color of the
/// text style and turned automatically. The library only keeps the four flags; the host's labelling
/// obeys them. Setters check nothing.
///
/// @code
/// DepthLabelInfo label;
/// label.SetPrecision(1);
/// label.SetJustification(TextInfo::MIDDLE_CENTER);
/// assert(label.ToString() == "Arial,2.5,0,8,0,0,0,0,0,0,1,0,0,1,1,0,0");
/// @endcode
class MARLIN_API DepthLabelInfo : public TextInfo {
public:
    /// How the decimals are set apart.
    enum PRESENTATION : int {
        PRESENTATION_0 = 0,  ///< not at all: the whole number is one text
        PRESENTATION_1 = 1,  ///< decimals lowered, two thirds high, point dropped
        PRESENTATION_2 = 2,  ///< decimals raised, two thirds high, point dropped
        PRESENTATION_3 = 3,  ///< decimals lowered, two thirds high, point after the integer
        PRESENTATION_4 = 4,  ///< decimals raised, two thirds high, point after the integer
    };
    /// Which point of the label lies on the position.
    enum PLACEMENT : int {
        PLACEMENT_0 = 0,  ///< the lower left end of the integer, at the height of its baseline
        PLACEMENT_1 = 1,  ///< the lower right end of the integer, where its decimals begin
        PLACEMENT_2 = 2,  ///< the centre of the whole label
    };

    DepthLabelInfo() = default;
    /// Takes the text style and the defaults of the other fields.
    DepthLabelInfo(const TextInfo& text) : TextInfo(text) {}

    /// The number of decimals; a negative one counts as 0. Depths are rounded as the C library's
    /// `printf` does: exactly, and ties of the binary value to the even digit, so 0.125 becomes
    /// "0.12", and 2.675, which is less in binary, "2.67".
    [[nodiscard]] int Precision() const noexcept { return m_Precision; }
    /// One of the five, unless a host has stored another number.
    [[nodiscard]] PRESENTATION Presentation() const noexcept { return m_Presentation; }
    /// One of the three, unless a host has stored another number.
    [[nodiscard]] PLACEMENT Placement() const noexcept { return m_Placement; }
    /// Whether labels have the color of the text style.
    [[nodiscard]] bool UseTextColor() const noexcept { return m_UseTextColor; }
    /// Whether the host turns labels by itself.
    [[nodiscard]] bool AutoTextRotation() const noexcept { return m_AutoTextRotation; }
    /// Whether heights of what falls dry are underlined.
    [[nodiscard]] bool GetUnderlineDryingHeights() const noexcept {
        return m_UnderlineDryingHeights;
    }
    /// Whether zeros among the decimals are left out.
    [[nodiscard]] bool GetNoDecimalZeros() const noexcept { return m_NoDecimalZeros; }

    /// Stores the number of decimals unchecked.
    void SetPrecision(int precision) noexcept { m_Precision = precision; }
    /// Stores the number unchecked.
    void SetPresentation(PRESENTATION presentation) noexcept { m_Presentation = presentation; }
    /// Stores the number unchecked.
    void SetPlacement(PLACEMENT placement) noexcept { m_Placement = placement; }
    /// True gives labels the color of the text style.
    void UseTextColor(bool use) noexcept { m_UseTextColor = use; }
    /// True has the host turn labels by itself.
    void AutoTextRotation(bool on) noexcept { m_AutoTextRotation = on; }
    /// True underlines the heights of what falls dry.
    void SetUnderlineDryingHeights(bool underline) noexcept {
        m_UnderlineDryingHeights = underline;
    }
    /// True leaves out zeros among the decimals.
    void SetNoDecimalZeros(bool suppress) noexcept { m_NoDecimalZeros = suppress; }

    /// Compares text styles by their own equality, all other fields exactly.
    bool operator==(const DepthLabelInfo& other) const noexcept = default;
    /// A plain text style is no depth label: compare the `TextInfo` parts instead.
    bool operator==(const TextInfo&) const = delete;

    /// Joins the ten items of the text style, the precision and the other fields in the order of
    /// their getters; flags are 1 or 0.
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, which stay where an item is missing or a presentation or placement
    /// is out of range; other items that are not a number count as 0. A list of 14 items has the
    /// older layout, without a color word and without items for the last two flags.
    void FromString(const std::string& text);
    /// The items in the order of `ToString`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

protected:
    using TextInfo::FromString;

private:
    template <class Items>
    void ForEachItem(Items& items);

    int m_Precision = 2;
    PRESENTATION m_Presentation = PRESENTATION_0;
    PLACEMENT m_Placement = PLACEMENT_0;
    bool m_UseTextColor = true;
    bool m_AutoTextRotation = true;
    bool m_UnderlineDryingHeights = false;
    bool m_NoDecimalZeros = false;
};

#pragma GCC diagnostic pop
