// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/size.h>
#include <marlin/records/text_info.h>

#include <optional>
#include <string_view>

namespace MARLINSUITE {

/// Measures texts in one style, with a context and a font of its own, in logical units.
class TextMeasure {
public:
    /// The style carries the size. Not good when it cannot be measured.
    explicit TextMeasure(const TextInfo& ti);

    [[nodiscard]] bool IsGood() const noexcept { return m_Height != 0; }
    /// That the font was asked for.
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    /// Width and height of a line of that text.
    [[nodiscard]] SIZE Extent(std::string_view text) const noexcept;

private:
    CDC m_DC;
    CFont m_Font;
    std::optional<GDISelector> m_Selected;
    int m_Height = 0;
};

}  // namespace MARLINSUITE
