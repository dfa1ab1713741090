// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>

struct FT_Outline_;

namespace PLATFORM::detail {

/// Where a glyph is painted: the pixel of its origin, and the pixels of a design unit.
struct Placement {
    double X = 0;
    double Y = 0;
    double ScaleX = 1;
    double ScaleY = 1;
};

/// Paints the inside of a glyph, with smooth edges, on the surface, and changes the outline to that
/// of the painted glyph. One that reaches further than 32,000 pixels from the surface's corner is
/// not painted. Callers hold the lock of the font store.
void PaintGlyph(FT_Outline_& glyph, const Placement& at, COLORREF color, BitmapRecord& surface);

}  // namespace PLATFORM::detail
