// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/fonts/detail/sized_font.h>

#include <cmath>

namespace PLATFORM::detail {

SizedFont::SizedFont(const FontFace* face, int height, int defaultCell) noexcept : m_Face(face) {
    if (!face) {
        return;
    }
    const OUTLINETEXTMETRICA& metrics = face->Metrics();
    if (height < 0) {
        m_Logical = std::fabs(static_cast<double>(height));  // the lowest int has no opposite
        m_Design = metrics.otmEMSquare;
        m_Cell = Round(metrics.otmTextMetrics.tmHeight);
        return;
    }
    m_Cell = height > 0 ? height : defaultCell;
    m_Logical = m_Cell;
    m_Design = metrics.otmTextMetrics.tmHeight;
}

// Multiplied before divided: the other order would round twice.
int SizedFont::Round(double designUnits) const noexcept {
    return RoundToInt(designUnits * m_Logical / m_Design);
}

// An unsigned length of a face may be negative all the same, hence the numbers in between.
template <typename... Lengths>
void SizedFont::Scale(Lengths&... lengths) const noexcept {
    ((lengths = static_cast<Lengths>(Round(static_cast<int>(lengths)))), ...);
}

OUTLINETEXTMETRICA SizedFont::Metrics() const noexcept {
    OUTLINETEXTMETRICA otm = m_Face->Metrics();
    TEXTMETRICA& tm = otm.otmTextMetrics;
    Scale(tm.tmAscent, tm.tmExternalLeading, tm.tmAveCharWidth, tm.tmMaxCharWidth);
    // The rest of the cell, so that the parts always add up to it.
    tm.tmHeight = m_Cell;
    tm.tmDescent = m_Cell - tm.tmAscent;
    tm.tmInternalLeading = m_Cell - Round(otm.otmEMSquare);
    Scale(otm.otmAscent, otm.otmDescent, otm.otmLineGap);
    Scale(otm.otmMacAscent, otm.otmMacDescent, otm.otmMacLineGap);
    Scale(otm.otmsCapEmHeight, otm.otmsXHeight);
    RECT& box = otm.otmrcFontBox;
    Scale(box.left, box.top, box.right, box.bottom);
    for (POINT* const point : {&otm.otmptSubscriptSize, &otm.otmptSubscriptOffset,
                               &otm.otmptSuperscriptSize, &otm.otmptSuperscriptOffset}) {
        Scale(point->x, point->y);
    }
    Scale(otm.otmsStrikeoutSize, otm.otmsStrikeoutPosition);
    Scale(otm.otmsUnderscoreSize, otm.otmsUnderscorePosition);
    return otm;
}

}  // namespace PLATFORM::detail
