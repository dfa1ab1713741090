// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/painting.h>
#include <marlin/platform/drawing/detail/rasterizer.h>
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/drawing/detail/text_painting.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/fonts/text_outline.h>
#include <marlin/platform/text/code_page.h>

#include <string>

namespace PLATFORM::detail {

namespace {

// The flags of each direction share bits; these two have all of theirs.
constexpr unsigned int HorizontalBits = TA_CENTER;
constexpr unsigned int VerticalBits = TA_BASELINE;

// Long texts are painted in pieces of so many characters: FreeType's outlines count points in 16
// bits.
constexpr int PieceLength = 64;

// Design units from the start of the text to its reference point.
double ReferenceX(unsigned int alignment, double advance) noexcept {
    const unsigned int horizontal = alignment & HorizontalBits;
    if (horizontal == TA_CENTER) {
        return advance / 2;
    }
    return horizontal == TA_RIGHT ? advance : 0;
}

double ReferenceY(unsigned int alignment, const FaceMetrics& face) noexcept {
    const unsigned int vertical = alignment & VerticalBits;
    if (vertical == TA_BASELINE) {
        return 0;
    }
    return vertical == TA_BOTTOM ? -face.CellDescent : face.CellAscent;
}

// The size in bytes of a text's first piece.
std::size_t PieceSize(std::string_view utf8) noexcept {
    std::string_view rest = utf8;
    for (int i = 0; i < PieceLength && !rest.empty(); ++i) {
        TakeCodePoint(rest);
    }
    return utf8.size() - rest.size();
}

void PaintLetters(HDC dc, std::string_view utf8, Placement at, COLORREF color,
                  BitmapRecord& surface) {
    TextOutline piece;
    while (!utf8.empty()) {
        const std::size_t size = PieceSize(utf8);
        if (!GetTextOutline(dc, utf8.data(), static_cast<int>(size), piece)) {
            return;
        }
        PaintShape(piece.Steps, at, color, surface);
        at.X += piece.Advance * at.ScaleX;
        utf8.remove_prefix(size);
    }
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
    const FaceMetrics& metrics = face.Metrics();
    const auto advance = static_cast<double>(face.Advance(text));
    const double scaleX = context.Map.ScaleX() * font.Sized.Scale();
    const double scaleY = context.Map.ScaleY() * font.Sized.Scale();
    const POINT device = context.Map.ToDevice(at);
    const double x = device.x - ReferenceX(context.Alignment, advance) * scaleX;
    const double y = device.y + ReferenceY(context.Alignment, metrics) * scaleY;
    FillPixels(*surface,
               {RoundToInt(x), RoundToInt(y - metrics.CellAscent * scaleY),
                RoundToInt(x + advance * scaleX), RoundToInt(y + metrics.CellDescent * scaleY)},
               context.BackColor);
    // As UTF-8, since a piece of a text in Windows-1252 may happen to be valid UTF-8.
    PaintLetters(dc, ToUtf8(text), {x, y, scaleX, scaleY}, context.TextColor, *surface);
    return true;
}

}  // namespace PLATFORM::detail
