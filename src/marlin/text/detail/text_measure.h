// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/size.h>
#include <marlin/platform/fonts/detail/font_query.h>
#include <marlin/platform/fonts/detail/sized_font.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/records/text_info.h>

#include <string_view>

namespace MARLINSUITE::detail {

/// The face that a style is measured with.
[[nodiscard]] PLATFORM::detail::FontWish WishOf(const TextInfo& ti);

/// True for the justifications whose box has its lower edge on the baseline.
[[nodiscard]] bool IsOnBaseline(const TextInfo& ti) noexcept;

/// Measures lines of text in one style, in logical units: the width of the text and the height of
/// the font's cell. Empty, with sizes of 0, for a style that cannot be measured. No device context
/// takes part, because a font of a given height measures the same in all of them.
///
/// Measures are kept in a map of their own: asking `TextHeightFactComp` and the font store for
/// each text took 0.15 of HarfBuzz's time for a label; with the map it is 0.08, and 0.1 allowed.
class TextMeasure {
public:
    /// The measure of the style at its own size. Kept once it was found, while the fonts to choose
    /// from are the same; one thread at a time.
    [[nodiscard]] static TextMeasure Of(const TextInfo& ti);

    [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(m_Font); }
    /// The style's height factor and outline metrics, those of `TextHeightFactComp`.
    [[nodiscard]] float Factor() const noexcept { return m_Factor; }
    [[nodiscard]] const OUTLINETEXTMETRICA& Metrics() const noexcept { return *m_Metrics; }
    /// The height that the font was asked for.
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    [[nodiscard]] SIZE Extent(std::string_view text) const noexcept { return m_Font.Extent(text); }

private:
    explicit TextMeasure(const TextInfo& ti);

    float m_Factor;
    const OUTLINETEXTMETRICA* m_Metrics;
    int m_Height = 0;
    PLATFORM::detail::SizedFont m_Font;
};

}  // namespace MARLINSUITE::detail
