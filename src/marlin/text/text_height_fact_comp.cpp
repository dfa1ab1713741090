// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/sized_font.h>
#include <marlin/text/text_height_fact_comp.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

using PLATFORM::detail::FontStore;
using PLATFORM::detail::SizedFont;

constinit const OUTLINETEXTMETRICA noMetrics{};

bool IsUsable(float size) noexcept {
    return std::fabs(size * GDIScaleFactor::Get()) < std::numeric_limits<int>::max();
}

}  // namespace

TextHeightFactComp& TextHeightFactComp::operator=(const TextHeightFactComp& other) {
    m_Entries.insert(other.m_Entries.begin(), other.m_Entries.end());
    return *this;
}

TextHeightFactComp& TextHeightFactComp::Get() {
    struct Instance {
        TextHeightFactComp Value;  // whose constructor is private
    };
    return MARLINSUITE::detail::ProcessObject<Instance>().Value;
}

float TextHeightFactComp::operator()(const TextInfo& ti) {
    const Measures* found = Find(ti);
    return found ? found->first : 0.0F;
}

const OUTLINETEXTMETRICA& TextHeightFactComp::GetMetrics(const TextInfo& ti) {
    const Measures* found = Find(ti);
    return found ? found->second : noMetrics;
}

// A size that is not a number has no place in the order of the entries.
const TextHeightFactComp::Measures* TextHeightFactComp::Find(const TextInfo& ti) {
    if (!IsUsable(ti.Size())) {
        return nullptr;
    }
    auto found = m_Entries.find({FontStore::Edition(), ti});
    if (found == m_Entries.end()) {
        found = AddEntry(ti);
    }
    return found != m_Entries.end() ? &found->second : nullptr;
}

TextHeightFactComp::Entries::iterator TextHeightFactComp::AddEntry(const TextInfo& ti) {
    const double scale = GDIScaleFactor::Get();
    const int h = static_cast<int>(ti.Size() * scale);
    // Of the regular upright face in every style: `TextMeasure` says why.
    const SizedFont font(h != 0 ? FontStore::Find({ti.Font().c_str()}) : nullptr, h, 0);
    if (!font) {
        return m_Entries.end();
    }
    const OUTLINETEXTMETRICA metrics = font.Metrics();
    const TEXTMETRICA& tm = metrics.otmTextMetrics;
    if (tm.tmHeight == 0) {
        return m_Entries.end();
    }
    const long long hidden = std::abs(metrics.otmDescent) + std::abs(tm.tmExternalLeading) +
                             std::abs(tm.tmInternalLeading);
    // The product does not fit 32 bits for characters taller than a hand.
    const long long visible = h - hidden * h / tm.tmHeight;
    if (visible == 0) {
        return m_Entries.end();
    }
    const auto factor = static_cast<float>(ti.Size() / (static_cast<double>(visible) / scale));
    return m_Entries.try_emplace({FontStore::Edition(), ti}, factor, metrics).first;
}
