// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/text/detail/measuring_context.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace {

constinit const OUTLINETEXTMETRICA noMetrics{};

bool IsUsable(float size) noexcept {
    return std::fabs(size * GDIScaleFactor::Get()) < std::numeric_limits<int>::max();
}

// The outline metrics of the style's font at the height; false when the platform gives none.
bool Measure(const TextInfo& ti, int height, OUTLINETEXTMETRICA& metrics) {
    CDC dc;
    MARLINSUITE::PrepareMeasuringContext(dc);
    CFont font;
    font.CreateFontA(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, OUT_TT_ONLY_PRECIS,
                     CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH, ti.Font().c_str());
    const GDISelector selected(&dc, font);
    return dc.GetOutlineTextMetricsA(sizeof metrics, &metrics) != 0;
}

}  // namespace

TextHeightFactComp& TextHeightFactComp::Get() {
    static TextHeightFactComp instance;
    return instance;
}

float TextHeightFactComp::operator()(const TextInfo& ti) {
    const Measures* found = Find(ti);
    return found ? found->first : 0.0F;
}

const OUTLINETEXTMETRICA& TextHeightFactComp::GetMetrics(const TextInfo& ti) {
    const Measures* found = Find(ti);
    return found ? found->second : noMetrics;
}

const TextHeightFactComp::Measures* TextHeightFactComp::Latest::Find(
    const TextInfo& ti) const noexcept {
    for (const Entries::value_type* entry : m_Entries) {
        if (entry && entry->first.Size() == ti.Size() && entry->first.Style() == ti.Style() &&
            entry->first.Font() == ti.Font()) {
            return &entry->second;
        }
    }
    return nullptr;
}

void TextHeightFactComp::Latest::Add(const Entries::value_type& entry) noexcept {
    m_Entries[m_Oldest] = &entry;
    m_Oldest = 1 - m_Oldest;
}

// A size that is not a number has no place in the order of the entries.
const TextHeightFactComp::Measures* TextHeightFactComp::Find(const TextInfo& ti) {
    if (const Measures* known = m_Latest.Find(ti)) {
        return known;
    }
    if (!IsUsable(ti.Size())) {
        return nullptr;
    }
    auto found = std::as_const(m_Entries).find(ti);
    if (found == m_Entries.end()) {
        found = AddEntry(ti);
    }
    if (found == m_Entries.end()) {
        return nullptr;
    }
    m_Latest.Add(*found);
    return &found->second;
}

TextHeightFactComp::Entries::const_iterator TextHeightFactComp::AddEntry(const TextInfo& ti) {
    const double scale = GDIScaleFactor::Get();
    const int h = static_cast<int>(ti.Size() * scale);
    OUTLINETEXTMETRICA metrics;
    if (!Measure(ti, h, metrics) || metrics.otmTextMetrics.tmHeight == 0) {
        return m_Entries.end();
    }
    const TEXTMETRICA& tm = metrics.otmTextMetrics;
    const long long hidden = std::abs(metrics.otmDescent) + std::abs(tm.tmExternalLeading) +
                             std::abs(tm.tmInternalLeading);
    // The product does not fit 32 bits for characters taller than a hand.
    const long long visible = h - hidden * h / tm.tmHeight;
    if (visible == 0) {
        return m_Entries.end();
    }
    const auto factor = static_cast<float>(ti.Size() / (static_cast<double>(visible) / scale));
    return m_Entries.try_emplace(ti, factor, metrics).first;
}
