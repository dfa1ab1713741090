// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/text/detail/text_measure.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <limits>
#include <map>

namespace MARLINSUITE::detail {

namespace {

using PLATFORM::detail::FontStore;
using PLATFORM::detail::SizedFont;

// 0 when the style cannot be measured.
int FontHeight(const TextInfo& ti, double factor) {
    const double height = std::ceil(ti.Size() * factor * GDIScaleFactor::Get());
    return std::fabs(height) < std::numeric_limits<int>::max() ? static_cast<int>(height) : 0;
}

// The factor is that of the regular upright face, whatever the style: all styles of one family and
// size are then asked for at one height, and their lines are equally high.
SizedFont FontOf(const TextInfo& ti, int height) {
    return {FontStore::Find(WishOf(ti)), height, 0};
}

}  // namespace

PLATFORM::detail::FontWish WishOf(const TextInfo& ti) {
    const auto style = static_cast<unsigned int>(ti.Style());
    const int weight = (style & TextInfo::BOLD) != 0 ? FW_BOLD : FW_NORMAL;
    // Names of the platform end at a null character.
    return {ti.Font().c_str(), weight, (style & TextInfo::ITALIC) != 0};
}

bool IsOnBaseline(const TextInfo& ti) noexcept {
    return ti.Justification() >= TextInfo::BASELINE_LEFT &&
           ti.Justification() <= TextInfo::BASELINE_RIGHT;
}

TextMeasure::TextMeasure(const TextInfo& ti)
    : m_Factor(TextHeightFactComp::Get()(ti)),
      m_Metrics(&TextHeightFactComp::Get().GetMetrics(ti)),
      m_Height(FontHeight(ti, m_Factor)) {
    if (m_Height != 0) {
        m_Font = FontOf(ti, m_Height);
    }
}

TextMeasure TextMeasure::Of(const TextInfo& ti) {
    struct Known {
        std::map<TextInfo, TextMeasure> Measures;
        std::size_t Edition = 0;
    };
    auto& [measures, edition] = ProcessObject<Known>();
    if (edition != FontStore::Edition()) {
        measures.clear();
        edition = FontStore::Edition();
    }
    if (std::isnan(ti.Size())) {  // which has no place in the order of styles
        return TextMeasure(ti);
    }
    if (const auto known = measures.find(ti); known != measures.end()) {
        return known->second;
    }
    // A font that is not there yet may come, so a failure is not kept.
    const TextMeasure measure(ti);
    if (measure.m_Font) {
        measures.emplace(ti, measure);
    }
    return measure;
}

}  // namespace MARLINSUITE::detail
