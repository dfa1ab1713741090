// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/size.h>
#include <marlin/platform/fonts/detail/font_scale.h>

#include <string_view>

namespace PLATFORM {

/// Measures lines of text in a font as `GetTextExtentPoint32A` does where the font is selected
/// into a context: a font with a height of its own measures the same in all of them, so none is
/// made. The sizes of a font that cannot be measured are 0.
class LineMeasure {
public:
    constexpr LineMeasure() noexcept = default;
    /// Of an outline font, asked for as in `CreateFontA`; the height is not 0.
    LineMeasure(int height, int weight, bool italic, std::string_view faceName);

    [[nodiscard]] bool IsGood() const noexcept { return m_Face != nullptr; }
    [[nodiscard]] SIZE Extent(std::string_view text) const noexcept {
        return m_Face ? ExtentOf(*m_Face, m_Scale, text) : SIZE{};
    }

private:
    const FontFace* m_Face = nullptr;
    FontScale m_Scale;
};

}  // namespace PLATFORM
