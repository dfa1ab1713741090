// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/text/detail/depth_label_rects.h>
#include <marlin/text/detail/text_measure.h>
#include <marlin/text/detail/text_wrapper.h>
#include <marlin/text/text_rect_comp.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace {

using namespace MARLINSUITE::detail;

// All overloads end a text at its first null character, as the platform does.
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

// The height that a box on the baseline lacks of the font's cell.
long long HiddenHeight(const TextInfo& ti, const TextMeasure& measure) {
    const OUTLINETEXTMETRICA& metrics = measure.Metrics();
    const TEXTMETRICA& tm = metrics.otmTextMetrics;
    if (!IsOnBaseline(ti) || tm.tmHeight == 0) {
        return 0;
    }
    // The product does not fit 32 bits for characters taller than a hand.
    const long long hidden = std::abs(tm.tmInternalLeading) + std::abs(metrics.otmDescent);
    return hidden * measure.Height() / tm.tmHeight;
}

// Texts are measured in the absolute size: a style that was read from a text may have a sign.
TextInfo Sized(const TextInfo& ti, double share) {
    TextInfo sized = ti;
    sized.SetSize(static_cast<float>(ti.Size() * share));
    return sized;
}

std::string NumberText(const DepthLabelInfo& dli, double depth) {
    std::string text;
    MARLINSUITE::AppendFixed(text, depth, std::min(dli.Precision(), TextRectComp::MaxDecimals));
    return text;
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

bool TextRectComp::FindFace(const TextInfo& ti, PLATFORM::FontMatch& face) {
    return TextMeasure::Of(Sized(ti, 1)) && PLATFORM::detail::FontStore::Match(WishOf(ti), face);
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
    return GetLineExtents(Sized(ti, small ? 2.0 / 3.0 : 1.0), text);
}

TextRectComp::Extents TextRectComp::GetLineExtents(const TextInfo& ti, std::string_view text) {
    const TextMeasure measure = TextMeasure::Of(ti);
    const SIZE size = measure.Extent(text);
    if (size.cy == 0) {
        m_Lines.clear();
        return {};
    }
    m_Lines.resize(1);  // which keeps the line's memory for the next text
    m_Lines.front() = text;
    // A font may come out at another height than was asked for; the result is of the one asked for.
    const double ratio = static_cast<double>(measure.Height()) / size.cy;
    const double scale = GDIScaleFactor::Get();
    m_LineHeight = static_cast<double>(size.cy - HiddenHeight(ti, measure)) / scale;
    return {size.cx / scale * ratio, m_LineHeight * ratio};
}

TextRectComp::Extents TextRectComp::GetMTextExtents(const TextInfo& ti, std::string_view text) {
    m_Lines.clear();
    const TextMeasure measure = TextMeasure::Of(Sized(ti, 1));
    if (!measure) {
        return {};
    }
    const double scale = GDIScaleFactor::Get();
    TextWrapper wrapper(measure, ti.RectWidth() * scale, m_Lines);
    wrapper.Wrap(text);
    // Unlike a single line: neither in the ratio of heights, nor lowered to the baseline.
    m_LineHeight = wrapper.LineHeight() / scale;
    return {wrapper.MaxWidth() / scale, m_LineHeight * static_cast<double>(m_Lines.size())};
}

std::pair<TextRectComp::LabelPart, TextRectComp::LabelPart> TextRectComp::operator()(
    const DepthLabelInfo& dli, double depth) {
    std::pair<LabelPart, LabelPart> label;
    auto& [integers, integerText] = label.first;
    auto& [decimals, decimalText] = label.second;
    integerText = NumberText(dli, depth);
    const std::size_t split = SplitPoint(dli, integerText);
    const std::string_view number = integerText;
    if (IsMerged(dli)) {
        integers = RectOf(dli, number.substr(0, split));
        if (split != std::string::npos) {
            decimals =
                DecimalsAtFullSize(dli, integers, GetTextExtents(dli, number.substr(split), false));
        }
    } else if (split == std::string::npos) {
        integers = RectOf(dli, number);
        decimalText = " ";
    } else {
        decimalText = number.substr(split + 1);
        integerText.resize(KeepsPoint(dli) ? split + 1 : split);
        integers = RectOf(dli, integerText);
        decimals = DecimalsSetApart(dli, integers, GetTextExtents(dli, decimalText, true));
    }
    OffsetLabels(dli, integers, decimals);
    return label;
}
