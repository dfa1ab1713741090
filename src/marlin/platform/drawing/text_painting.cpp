// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/rasterizer.h>
#include <marlin/platform/drawing/text_painting.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/fonts/text_outline.h>
#include <marlin/platform/text/code_page.h>

#include <cmath>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace PLATFORM;
using namespace PLATFORM::detail;

// The flags of each direction share bits; these two have all of theirs.
constexpr unsigned int HorizontalBits = TA_CENTER;
constexpr unsigned int VerticalBits = TA_BASELINE;

// Long texts are painted in pieces of so many characters: FreeType's outlines count points in 16
// bits.
constexpr int PieceLength = 64;

struct Piece {
    TextOutline Text;
    Placement At;
};

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

// Logical y often points up and device y down, but letters stay upright: no signs here.
Placement Directions(const Mapping& mapping, const SelectedFont& font) noexcept {
    const double angle = font.Record->Escapement / 1800.0 * std::numbers::pi;
    const double scaleX = mapping.ScaleX() * font.Sized.Scale();
    const double scaleY = mapping.ScaleY() * font.Sized.Scale();
    return {0,
            0,
            std::cos(angle) * scaleX,
            -std::sin(angle) * scaleX,
            -std::sin(angle) * scaleY,
            -std::cos(angle) * scaleY};
}

Placement Moved(Placement at, double right, double up) noexcept {
    at.X += right * at.RightX + up * at.UpX;
    at.Y += right * at.RightY + up * at.UpY;
    return at;
}

std::vector<OutlineStep> CellOf(const TextOutline& text) {
    return {{OutlineStep::MOVE, {0, -text.Descent}, {}, {}},
            {OutlineStep::LINE, {0, text.Ascent}, {}, {}},
            {OutlineStep::LINE, {text.Advance, text.Ascent}, {}, {}},
            {OutlineStep::LINE, {text.Advance, -text.Descent}, {}, {}}};
}

// The size in bytes of a text's first piece.
std::size_t PieceSize(std::string_view utf8) noexcept {
    std::string_view rest = utf8;
    for (int i = 0; i < PieceLength && !rest.empty(); ++i) {
        TakeCodePoint(rest);
    }
    return utf8.size() - rest.size();
}

// As UTF-8, since a piece of a text in Windows-1252 may happen to be valid UTF-8.
std::vector<Piece> PiecesOf(HDC dc, std::string_view bytes, Placement at) {
    const std::string utf8 = ToUtf8(bytes);
    std::string_view text = utf8;
    std::vector<Piece> pieces;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, PieceSize(text));
        Piece piece{{}, at};
        if (!GetTextOutline(dc, part.data(), static_cast<int>(part.size()), piece.Text)) {
            return {};
        }
        at = Moved(at, piece.Text.Advance, 0);
        pieces.push_back(std::move(piece));
        text.remove_prefix(part.size());
    }
    return pieces;
}

}  // namespace

BOOL TextOutA(HDC dc, int x, int y, const char* text, int count) {
    const SelectedFont font = FontOf(dc);
    if (!font || count < 0 || (!text && count > 0)) {
        return 0;
    }
    const ContextRecord& context = *Contexts().Find(dc);
    BitmapRecord* surface = SurfaceOf(context);
    if (!surface) {
        return 1;
    }
    const FontFace& face = font.Sized.Face();
    const std::string_view bytes(text, static_cast<std::size_t>(count));
    Placement at = Directions(context.Map, font);
    const POINT device = context.Map.ToDevice({x, y});
    at.X = device.x;
    at.Y = device.y;
    const auto advance = static_cast<double>(face.Advance(bytes));
    at = Moved(at, -ReferenceX(context.Alignment, advance),
               -ReferenceY(context.Alignment, face.Metrics()));
    // All cells first: a letter may reach into the cell beside its own.
    const std::vector<Piece> pieces = PiecesOf(dc, bytes, at);
    for (const Piece& piece : pieces) {
        if (context.BackMode == OPAQUE) {
            PaintShape(CellOf(piece.Text), piece.At, context.BackColor, *surface);
        }
    }
    for (const Piece& piece : pieces) {
        PaintShape(piece.Text.Steps, piece.At, context.TextColor, *surface);
    }
    return 1;
}
