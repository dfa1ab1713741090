// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/drawing/fonts.h>
#include <marlin/text/detail/measuring_context.h>
#include <marlin/text/detail/text_measure.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <limits>

namespace MARLINSUITE {

namespace {

// That the font of a style has to be asked for; 0 when the style cannot be measured.
int FontHeight(const TextInfo& ti) {
    const double factor = TextHeightFactComp::Get()(ti);
    const double height = std::ceil(ti.Size() * factor * GDIScaleFactor::Get());
    return std::fabs(height) < std::numeric_limits<int>::max() ? static_cast<int>(height) : 0;
}

}  // namespace

TextMeasure::TextMeasure(const TextInfo& ti) {
    const int height = FontHeight(ti);
    if (height == 0) {
        return;
    }
    const auto style = static_cast<unsigned int>(ti.Style());
    PrepareMeasuringContext(m_DC);
    if (!m_Font.CreateFontA(height, 0, 0, 0, (style & TextInfo::BOLD) != 0 ? FW_BOLD : FW_NORMAL,
                            style & TextInfo::ITALIC, style & TextInfo::UNDERLINE, 0, ANSI_CHARSET,
                            OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH,
                            ti.Font().c_str())) {
        return;
    }
    m_Selected.emplace(&m_DC, m_Font);
    m_Height = height;
}

SIZE TextMeasure::Extent(std::string_view text) const noexcept {
    SIZE size{};
    ::GetTextExtentPoint32A(m_DC.m_hDC, text.data(), static_cast<int>(text.size()), &size);
    return size;
}

}  // namespace MARLINSUITE
