// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/text/detail/text_measure.h>
#include <marlin/text/detail/text_wrapper.h>
#include <marlin/text/text_height_fact_comp.h>
#include <marlin/text/text_rect_comp.h>

#include <array>
#include <cstddef>
#include <cstdlib>

namespace {

std::string_view ViewOf(const char* text) noexcept {
    return text ? std::string_view(text) : std::string_view();
}

// The justified point of the box, in shares of its width and height from the lower left corner.
struct Share {
    double Width;
    double Height;
};

Share JustifiedPoint(TextInfo::JUSTIFICATION justification) noexcept {
    static constexpr std::array<Share, 12> points = {{{0, 0},
                                                      {0.5, 0},
                                                      {1, 0},
                                                      {1, 0.5},
                                                      {1, 1},
                                                      {0.5, 1},
                                                      {0, 1},
                                                      {0, 0.5},
                                                      {0.5, 0.5},
                                                      {0, 0},
                                                      {0.5, 0},
                                                      {1, 0}}};
    const auto index = static_cast<std::size_t>(justification);
    return index < points.size() ? points[index] : Share{0, 0};
}

bool IsOnBaseline(const TextInfo& ti) noexcept {
    return ti.Justification() >= TextInfo::BASELINE_LEFT &&
           ti.Justification() <= TextInfo::BASELINE_RIGHT;
}

// What a box on the baseline is lower than the character cell, for a font of that height.
long long HiddenHeight(const TextInfo& ti, float size, int height) {
    if (!IsOnBaseline(ti)) {
        return 0;
    }
    const OUTLINETEXTMETRICA& metrics =
        TextHeightFactComp::Get().GetMetrics(MARLINSUITE::Sized(ti, size));
    const TEXTMETRICA& tm = metrics.otmTextMetrics;
    if (tm.tmHeight == 0) {
        return 0;
    }
    const long long hidden = std::abs(tm.tmInternalLeading) + std::abs(metrics.otmDescent);
    return hidden * height / tm.tmHeight;  // wider than the product, which 32 bits may not hold
}

}  // namespace

TextRectComp::Rect TextRectComp::operator()(const TextInfo& ti, const char* text) {
    return RectOf(ti, ViewOf(text));
}

TextRectComp::Rect TextRectComp::operator()(const TextInfo& ti, const std::string& text) {
    return RectOf(ti, ViewOf(text.c_str()));
}

TextRectComp::Rect TextRectComp::operator()(const TextInfo& ti, const char* text, double) {
    return RectOf(ti, ViewOf(text));
}

TextRectComp::Rect TextRectComp::operator()(const TextInfo& ti, const std::string& text, double) {
    return RectOf(ti, ViewOf(text.c_str()));
}

bool TextRectComp::GetSubString(int i, std::string& out) const {
    if (i < 0 || i >= GetNumberOfSubStrings()) {
        return false;
    }
    out = m_Lines[static_cast<std::size_t>(i)];
    return true;
}

std::string TextRectComp::GetSubString(int i) const {
    std::string line;
    GetSubString(i, line);
    return line;
}

TextRectComp::Rect TextRectComp::RectOf(const TextInfo& ti, std::string_view text) {
    const Extents size = GetTextExtents(ti, text, false);
    const Share share = JustifiedPoint(ti.Justification());
    const double along = share.Width * size.x;
    const double up = share.Height * size.y;
    const double cosine = ti.Rotation().Cos();
    const double sine = ti.Rotation().Sin();
    Rect rect;
    rect.points[0] = {-(along * cosine + up * sine), along * sine - up * cosine};
    rect.width = size.x;
    rect.height = size.y;
    rect.rotation = ti.Rotation();
    rect.UpdateCorners();
    return rect;
}

TextRectComp::Extents TextRectComp::GetTextExtents(const TextInfo& ti, std::string_view text,
                                                   bool small) {
    if (text.empty()) {
        return {};
    }
    if (ti.MultiLine()) {
        return GetMTextExtents(ti, text);
    }
    const double share = small ? 2.0 / 3.0 : 1.0;
    return GetLineExtents(ti, static_cast<float>(ti.Size() * share), text);
}

TextRectComp::Extents TextRectComp::GetLineExtents(const TextInfo& ti, float fontSize,
                                                   std::string_view text) {
    const auto measure = MARLINSUITE::TextMeasure::Of(ti, fontSize);
    const SIZE size = measure.IsGood() ? measure.Extent(text) : SIZE{};
    if (size.cy == 0) {
        m_Lines.clear();
        return {};
    }
    m_Lines.resize(1);
    m_Lines.front() = text;
    const double ratio = static_cast<double>(measure.Height()) / size.cy;
    const long long height = size.cy - HiddenHeight(ti, fontSize, measure.Height());
    const double scale = GDIScaleFactor::Get();
    m_LineHeight = static_cast<double>(height) / scale;
    return {size.cx / scale * ratio, m_LineHeight * ratio};
}

TextRectComp::Extents TextRectComp::GetMTextExtents(const TextInfo& ti, std::string_view text) {
    m_Lines.clear();
    const auto measure = MARLINSUITE::TextMeasure::Of(ti, ti.Size());
    if (!measure.IsGood()) {
        return {};
    }
    const double scale = GDIScaleFactor::Get();
    MARLINSUITE::TextWrapper wrapper(measure, ti.RectWidth() * scale, m_Lines);
    wrapper.Wrap(text);
    m_LineHeight = wrapper.LineHeight() / scale;
    return {wrapper.MaxWidth() / scale, m_LineHeight * static_cast<double>(m_Lines.size())};
}
