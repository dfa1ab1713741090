// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/text_info.h>

#include <string>

// The destructor is not virtual: a record is deleted as what it was made.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The text style of the depth numbers of a plot: a `TextInfo`, the number of decimals, and how
/// a label is laid out and placed. By default 2 decimals, presentation and placement 0, in the
/// color of the text and turned automatically. The four flags are switches of the host's
/// labelling. Setters check nothing.
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
    /// The text style, with the defaults of the rest.
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

    /// The text styles by their own equality, all else exactly.
    bool operator==(const DepthLabelInfo& other) const noexcept = default;

    /// The ten items of the text style, then the precision and the other fields in the order of
    /// their getters, flags as 1 or 0.
    [[nodiscard]] std::string ToString() const;
    /// Starts from the defaults, which missing items and a presentation or placement out of range
    /// leave; other items that are no number count as 0. A list of 14 items is the older layout:
    /// no color word and no item for the last two flags.
    void FromString(const std::string& text);
    /// The items in the order of `ToString` with the values of this record.
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
