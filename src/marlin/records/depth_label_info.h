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
        PRESENTATION_0 = 0,
        PRESENTATION_1 = 1,
        PRESENTATION_2 = 2,
        PRESENTATION_3 = 3,
        PRESENTATION_4 = 4,
    };
    /// Which point of the label lies on the position.
    enum PLACEMENT : int {
        PLACEMENT_0 = 0,
        PLACEMENT_1 = 1,
        PLACEMENT_2 = 2,
    };

    DepthLabelInfo() = default;
    /// Takes the text style and the defaults of the other fields.
    DepthLabelInfo(const TextInfo& text) : TextInfo(text) {}

    /// The number of decimals.
    [[nodiscard]] int Precision() const noexcept { return m_Precision; }
    [[nodiscard]] PRESENTATION Presentation() const noexcept { return m_Presentation; }
    [[nodiscard]] PLACEMENT Placement() const noexcept { return m_Placement; }
    [[nodiscard]] bool UseTextColor() const noexcept { return m_UseTextColor; }
    [[nodiscard]] bool AutoTextRotation() const noexcept { return m_AutoTextRotation; }
    [[nodiscard]] bool GetUnderlineDryingHeights() const noexcept {
        return m_UnderlineDryingHeights;
    }
    [[nodiscard]] bool GetNoDecimalZeros() const noexcept { return m_NoDecimalZeros; }

    void SetPrecision(int precision) noexcept { m_Precision = precision; }
    void SetPresentation(PRESENTATION presentation) noexcept { m_Presentation = presentation; }
    void SetPlacement(PLACEMENT placement) noexcept { m_Placement = placement; }
    void UseTextColor(bool use) noexcept { m_UseTextColor = use; }
    void AutoTextRotation(bool on) noexcept { m_AutoTextRotation = on; }
    void SetUnderlineDryingHeights(bool underline) noexcept {
        m_UnderlineDryingHeights = underline;
    }
    void SetNoDecimalZeros(bool suppress) noexcept { m_NoDecimalZeros = suppress; }

    /// Compares text styles by their own equality, all other fields exactly.
    bool operator==(const DepthLabelInfo& other) const noexcept = default;

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
