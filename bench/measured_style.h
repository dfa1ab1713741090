// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/text/text_height_fact_comp.h>

#include <array>

#include <bench/inputs.h>

/// What the contestants of the jobs about texts measure, and with which font.
namespace BENCH {

/// The font of all contestants: one file, one size.
class MeasuredStyle {
public:
    /// Pixels of the peers' em square, and text units of ours.
    static constexpr int EmSize = 16;

    MeasuredStyle() {
        Require(PLATFORM::FontCatalog::Find(Face, 400, false, m_Match) && !m_Match.Substituted,
                "finding Liberation Sans");
        m_Text.SetFont(Face);
        m_Text.SetSize(EmSize);
        TextHeightFactComp& measures = TextHeightFactComp::Get();
        const TEXTMETRICA& tm = measures.GetMetrics(m_Text).otmTextMetrics;
        const double emOfCell = static_cast<double>(tm.tmHeight - tm.tmInternalLeading) /
                                static_cast<double>(tm.tmHeight);
        m_Text.SetSize(static_cast<float>(EmSize / (measures(m_Text) * emOfCell)));
    }

    /// The style whose font has that em square.
    [[nodiscard]] const TextInfo& Text() const noexcept { return m_Text; }
    [[nodiscard]] const std::string& Path() const noexcept { return m_Match.Path; }
    [[nodiscard]] int Index() const noexcept { return m_Match.Index; }

    static constexpr const char* Face = "Liberation Sans";

private:
    PLATFORM::FontMatch m_Match;
    TextInfo m_Text;
};

inline constexpr std::array<const char*, 8> Labels = {
    "Buoy 12", "Wreck 1954", "Pier 7 North", "Dredged to 12.5",
    "Sand",    "Light W4",   "km 118.250",   "Foul area"};

/// Words of two to ten letters, some joined by hyphens.
inline std::string LongText(std::size_t length) {
    Numbers numbers;
    std::string text;
    while (text.size() < length) {
        for (std::uint64_t letters = 2 + numbers.Next() % 9; letters > 0; --letters) {
            text += static_cast<char>('a' + numbers.Next() % 26);
        }
        text += numbers.Next() % 16 == 0 ? '-' : ' ';
    }
    text.resize(length);
    text.back() = 'x';
    return text;
}

/// Ends the program unless the width is within that share of ours: a peer that measures another
/// font, or another size, is none.
inline void RequireSameWidth(double width, double ours, double share, const char* what) {
    Require(width > ours * (1 - share) && width < ours * (1 + share), what);
}

}  // namespace BENCH
