// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/painting.h>
#include <marlin/platform/drawing/detail/rasterizer.h>
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/drawing/detail/text_painting.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <mutex>
#include <string>

namespace PLATFORM::detail {

namespace {

// The flags of each direction share bits; these two have all of theirs.
constexpr unsigned int HorizontalBits = TA_CENTER;
constexpr unsigned int VerticalBits = TA_BASELINE;

// Design units from the start of the text to its reference point.
double ReferenceX(unsigned int alignment, double advance) noexcept {
    const unsigned int horizontal = alignment & HorizontalBits;
    if (horizontal == TA_CENTER) {
        return advance / 2;
    }
    return horizontal == TA_RIGHT ? advance : 0;
}

double ReferenceY(unsigned int alignment, const TEXTMETRICA& cell) noexcept {
    const unsigned int vertical = alignment & VerticalBits;
    if (vertical == TA_BASELINE) {
        return 0;
    }
    return vertical == TA_BOTTOM ? -cell.tmDescent : cell.tmAscent;
}

void PaintLetters(const FontFace& face, std::string_view utf8, Placement at, COLORREF color,
                  BitmapRecord& surface) {
    while (!utf8.empty()) {
        const char32_t codePoint = TakeCodePoint(utf8);
        const int advance = face.Advance(codePoint);
        const std::scoped_lock lock(FontStore::Lock());
        if (FT_Outline_* const glyph = face.Outline(codePoint)) {
            PaintGlyph(*glyph, at, color, surface);
        }
        at.X += advance * at.ScaleX;
    }
}

// A line of that middle and thickness, under or through a text, at least a pixel high.
void PaintLine(const Placement& at, double length, double middle, double thickness, COLORREF color,
               BitmapRecord& surface) {
    const double top = at.Y - (middle + thickness / 2) * at.ScaleY;
    const double bottom = top + std::max(thickness * at.ScaleY, 1.0);
    FillPixels(surface,
               {RoundToInt(at.X), RoundToInt(top), RoundToInt(at.X + length * at.ScaleX),
                RoundToInt(bottom)},
               color);
}

}  // namespace

bool PaintText(HDC dc, POINT at, std::string_view text) {
    const SelectedFont font = FontOf(dc);
    if (!font) {
        return false;
    }
    const ContextRecord& context = *Contexts().Find(dc);
    BitmapRecord* const surface = SurfaceOf(context);
    if (!surface) {
        return true;
    }
    const FontFace& face = font.Sized.Face();
    const OUTLINETEXTMETRICA& metrics = face.Metrics();
    const TEXTMETRICA& cell = metrics.otmTextMetrics;
    const auto advance = static_cast<double>(face.Advance(text));
    const double scaleX = context.Map.ScaleX() * font.Sized.Scale();
    const double scaleY = context.Map.ScaleY() * font.Sized.Scale();
    const POINT device = context.Map.ToDevice(at);
    const Placement start{device.x - ReferenceX(context.Alignment, advance) * scaleX,
                          device.y + ReferenceY(context.Alignment, cell) * scaleY, scaleX, scaleY};
    FillPixels(
        *surface,
        {RoundToInt(start.X), RoundToInt(start.Y - cell.tmAscent * scaleY),
         RoundToInt(start.X + advance * scaleX), RoundToInt(start.Y + cell.tmDescent * scaleY)},
        context.BackColor);
    // As UTF-8, since only a whole text tells whether it is UTF-8.
    PaintLetters(face, ToUtf8(text), start, context.TextColor, *surface);
    if (font.Record->Underline) {
        PaintLine(start, advance, metrics.otmsUnderscorePosition, metrics.otmsUnderscoreSize,
                  context.TextColor, *surface);
    }
    if (font.Record->StrikeOut) {
        PaintLine(start, advance, metrics.otmsStrikeoutPosition, metrics.otmsStrikeoutSize,
                  context.TextColor, *surface);
    }
    return true;
}

}  // namespace PLATFORM::detail
