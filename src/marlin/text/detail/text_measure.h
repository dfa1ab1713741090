// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/size.h>
#include <marlin/platform/fonts/detail/line_measure.h>
#include <marlin/records/text_info.h>

#include <string_view>

namespace MARLINSUITE {

/// The style at another size.
[[nodiscard]] TextInfo Sized(const TextInfo& ti, float size);

/// Measures texts in one style, in logical units, as in a measuring context that holds its font.
class TextMeasure {
public:
    /// In a style at a size. Not good when it cannot be measured; the next call tries again.
    [[nodiscard]] static TextMeasure Of(const TextInfo& ti, float size);

    [[nodiscard]] bool IsGood() const noexcept { return m_Height != 0; }
    /// That the font was asked for.
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    /// Width and height of a line of that text.
    [[nodiscard]] SIZE Extent(std::string_view text) const noexcept { return m_Lines.Extent(text); }

private:
    struct Known;

    constexpr TextMeasure() noexcept = default;
    explicit TextMeasure(const TextInfo& ti);

    int m_Height = 0;
    PLATFORM::LineMeasure m_Lines;
};

}  // namespace MARLINSUITE
