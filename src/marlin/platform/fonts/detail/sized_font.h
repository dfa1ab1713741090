// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/size.h>
#include <marlin/platform/fonts/detail/font_face.h>

#include <string_view>

namespace PLATFORM::detail {

/// A face at a height, which is all that measuring takes: lengths of the face are scaled once and
/// rounded once to whole logical units, without kerning, so results do not depend on a device.
/// Every measurement comes here: those of a context through `FontOf`, those of the text classes
/// directly. Made empty, or of no face, it measures nothing.
class SizedFont {
public:
    constexpr SizedFont() noexcept = default;
    /// A height above 0 is that of the cell, below 0 that of the em square; 0 takes the cell of
    /// the default height. Neither is kept.
    SizedFont(const FontFace* face, int height, int defaultCell) noexcept;

    [[nodiscard]] explicit operator bool() const noexcept { return m_Face != nullptr; }
    /// Not to be asked of an empty one, nor are the metrics.
    [[nodiscard]] const FontFace& Face() const noexcept { return *m_Face; }
    /// Logical units a design unit.
    [[nodiscard]] double Scale() const noexcept { return m_Logical / m_Design; }

    /// The width and the cell height of a line; 0 of an empty one.
    [[nodiscard]] SIZE Extent(std::string_view text) const noexcept {
        return m_Face ? SIZE{Round(static_cast<double>(m_Face->Advance(text))), m_Cell} : SIZE{};
    }
    [[nodiscard]] OUTLINETEXTMETRICA Metrics() const noexcept;

private:
    [[nodiscard]] int Round(double designUnits) const noexcept;
    template <typename... Lengths>
    void Scale(Lengths&... lengths) const noexcept;

    const FontFace* m_Face = nullptr;
    double m_Logical = 0;
    double m_Design = 1;
    int m_Cell = 0;
};

}  // namespace PLATFORM::detail
