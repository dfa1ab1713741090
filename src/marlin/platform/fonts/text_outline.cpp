// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/fonts/text_outline.h>
#include <marlin/platform/text/code_page.h>

#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace PLATFORM {

namespace {

using namespace detail;

// Appends the glyphs' steps, each glyph where the one before ends.
struct Pen {
    std::vector<OutlineStep>* Steps;
    double X = 0;

    [[nodiscard]] OutlinePoint At(const FT_Vector& point) const noexcept {
        return {static_cast<double>(point.x) + X, static_cast<double>(point.y)};
    }
};

int Add(void* user, OutlineStep::KIND kind, const FT_Vector& to, const FT_Vector& control1,
        const FT_Vector& control2) {
    const Pen& pen = *static_cast<Pen*>(user);
    pen.Steps->push_back({kind, pen.At(to), pen.At(control1), pen.At(control2)});
    return 0;
}

int MoveTo(const FT_Vector* to, void* user) {
    return Add(user, OutlineStep::MOVE, *to, *to, *to);
}

int LineTo(const FT_Vector* to, void* user) {
    return Add(user, OutlineStep::LINE, *to, *to, *to);
}

int ConicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    return Add(user, OutlineStep::CONIC, *to, *control, *control);
}

int CubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
    return Add(user, OutlineStep::CUBIC, *to, *control1, *control2);
}

constexpr FT_Outline_Funcs penMoves{MoveTo, LineTo, ConicTo, CubicTo, 0, 0};

// A glyph that cannot be read leaves its place empty.
void AppendGlyph(const FontFace& face, char32_t codePoint, Pen& pen) {
    const std::scoped_lock lock(FontStore::Lock());
    FT_Outline* const outline = face.Outline(codePoint);
    const std::size_t before = pen.Steps->size();
    if (outline && FT_Outline_Decompose(outline, &penMoves, &pen) != 0) {
        pen.Steps->resize(before);
    }
}

// The advance of the whole text.
double AppendText(const FontFace& face, std::string_view text, std::vector<OutlineStep>& steps) {
    const std::string utf8 = ToUtf8(text);
    std::string_view rest = utf8;
    Pen pen{&steps};
    while (!rest.empty()) {
        const char32_t codePoint = TakeCodePoint(rest);
        AppendGlyph(face, codePoint, pen);
        pen.X += face.Advance(codePoint);
    }
    return pen.X;
}

// A box of that middle and thickness, under or through a text.
void AppendLine(double length, double middle, double thickness, std::vector<OutlineStep>& steps) {
    const double low = middle - thickness / 2;
    const double high = middle + thickness / 2;
    steps.push_back({OutlineStep::MOVE, {0, low}, {}, {}});
    for (const OutlinePoint& corner :
         {OutlinePoint{0, high}, {length, high}, {length, low}, {0, low}}) {
        steps.push_back({OutlineStep::LINE, corner, {}, {}});
    }
}

}  // namespace

bool GetTextOutline(HDC dc, const char* text, int count, TextOutline& outline) {
    const SelectedFont font = FontOf(dc);
    if (!font || count < 0 || (!text && count > 0)) {
        return false;
    }
    const FontFace& face = font.Sized.Face();
    const OUTLINETEXTMETRICA& metrics = face.Metrics();
    TextOutline made;
    made.Advance = AppendText(face, {text, static_cast<std::size_t>(count)}, made.Steps);
    if (font.Record->Underline) {
        AppendLine(made.Advance, metrics.otmsUnderscorePosition, metrics.otmsUnderscoreSize,
                   made.Steps);
    }
    if (font.Record->StrikeOut) {
        AppendLine(made.Advance, metrics.otmsStrikeoutPosition, metrics.otmsStrikeoutSize,
                   made.Steps);
    }
    made.Ascent = metrics.otmTextMetrics.tmAscent;
    made.Descent = metrics.otmTextMetrics.tmDescent;
    made.Scale = font.Sized.Scale();
    outline = std::move(made);
    return true;
}

}  // namespace PLATFORM
