// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/rect.h>

// Painting on the surface of a memory context, cut to it; display contexts have none and only
// report success. All return 0, and paint nothing, for a wrong handle.

/// Fills the rectangle, given in logical coordinates in any order of its edges. A hollow brush
/// paints nothing.
MARLIN_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept;
/// Paints the rectangle's edge, one logical unit wide, within it.
MARLIN_API int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept;
/// Paints `count` bytes of text with the context's font, text color and alignment, turned by the
/// font's escapement; first the cell behind it in the background color unless the mode is
/// TRANSPARENT. 0 also when the font cannot be measured or `count` is negative.
MARLIN_API BOOL TextOutA(HDC dc, int x, int y, const char* text, int count);
