// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/text/detail/text_measure.h>
#include <marlin/text/text_height_fact_comp.h>

#include <array>
#include <cmath>
#include <cstring>
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

/// What a style was measured with, while the fonts to choose from are the same.
struct TextMeasure::Known {
    std::array<char, 32> Name{};
    std::size_t Length = Name.size();
    float Size = 0;
    TextInfo::STYLE Style{};
    std::size_t Edition = 0;
    TextMeasure Measure;

    [[nodiscard]] bool IsOf(const TextInfo& ti, float size) const noexcept {
        return size == Size && ti.Style() == Style && ti.Font().size() == Length &&
               std::memcmp(ti.Font().data(), Name.data(), Length) == 0 &&
               Edition == PLATFORM::FontStore::Edition();
    }
};

TextInfo Sized(const TextInfo& ti, float size) {
    TextInfo sized = ti;
    sized.SetSize(size);
    return sized;
}

TextMeasure TextMeasure::Of(const TextInfo& ti, float size) {
    // The styles measured last are most often the next ones too: the parts of a depth label are
    // in two sizes. Plain numbers, so that a thread's own cost no call to reach.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local std::array<Known, 2> latest{};
    [[gnu::tls_model("initial-exec")]] static constinit thread_local std::size_t oldest = 0;
    for (const Known& known : latest) {
        if (known.IsOf(ti, size)) {
            return known.Measure;
        }
    }
    const std::size_t edition = PLATFORM::FontStore::Edition();
    const TextMeasure measure(Sized(ti, size));
    Known& known = latest[oldest];
    if (measure.m_Lines.IsGood() && ti.Font().size() < known.Name.size()) {
        known = {{}, ti.Font().size(), size, ti.Style(), edition, measure};
        ti.Font().copy(known.Name.data(), known.Length);
        oldest = 1 - oldest;
    }
    return measure;
}

TextMeasure::TextMeasure(const TextInfo& ti)
    : m_Height(FontHeight(ti)), m_Lines(LinesOf(ti, m_Height)) {}

}  // namespace MARLINSUITE
