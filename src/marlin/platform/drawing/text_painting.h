// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

/// Paints `count` bytes of text with the context's font, text color and alignment, turned by the
/// font's escapement, on the surface of a memory context; in the mode OPAQUE on a cell of the
/// background color. A context of the display has no surface, and only success is reported. 0,
/// and nothing painted, for a wrong handle, a negative count, a null text with a count above 0 or
/// a font that cannot be measured.
MARLIN_API BOOL TextOutA(HDC dc, int x, int y, const char* text, int count);
