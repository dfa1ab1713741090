// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/rect.h>

// Painting on the surface of a memory context, cut to it; a context of the display has none, and
// only success is reported. Calls given a wrong handle return 0 and paint nothing.

/// Fills the rectangle, given in logical coordinates in any order of its edges. A hollow brush
/// paints nothing.
MARLIN_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept;
/// Paints the edge of the rectangle, one logical unit wide, inside it.
MARLIN_API int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept;
