// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/drawing/font_types.h>
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

// Names of the platform end at a null character.
std::string_view NameOf(const TextInfo& ti) noexcept {
    return ti.Font().c_str();
}

PLATFORM::LineMeasure LinesOf(const TextInfo& ti, int height) {
    if (height == 0) {
        return {};
    }
    const auto style = static_cast<unsigned int>(ti.Style());
    return {height, (style & TextInfo::BOLD) != 0 ? FW_BOLD : FW_NORMAL,
            (style & TextInfo::ITALIC) != 0, NameOf(ti)};
}

}  // namespace

TextMeasure::TextMeasure(const TextInfo& ti)
    : m_Height(FontHeight(ti)), m_Lines(LinesOf(ti, m_Height)) {}

}  // namespace MARLINSUITE
