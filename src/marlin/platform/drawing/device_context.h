// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/handles.h>

// A device context holds the objects, colors and modes to draw with, and the mapping of
// `context_mapping.h`. One of the display answers for a fixed virtual display and paints nowhere;
// a memory context paints on the bitmap selected into it. Calls given a wrong handle return 0 and
// change nothing.

/// A context of the display, for the driver "DISPLAY" in upper or lower case; null for any other.
/// The other arguments are not used.
[[nodiscard]] MARLIN_API HDC CreateDCA(const char* driver, const char* device, const char* output,
                                       const void* initData);
/// A memory context like the given one; null means the display.
[[nodiscard]] MARLIN_API HDC CreateCompatibleDC(HDC dc);
/// Ends the context and lets go of its bitmap, which can then be deleted or selected elsewhere.
MARLIN_API BOOL DeleteDC(HDC dc) noexcept;

/// The display has 1920 by 1080 pixels of 32 bits at 96 dots an inch; 0 for an unknown index.
[[nodiscard]] MARLIN_API int GetDeviceCaps(HDC dc, int index) noexcept;

/// Selects a font, brush or bitmap and returns the one before. Returns null, and changes nothing,
/// for a wrong or null handle, for a bitmap that another context holds, and for any bitmap in a
/// context of the display. A new memory context has a bitmap without pixels; to let go of another
/// one, select it again.
MARLIN_API HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
/// The selected object of a kind; null for a kind that contexts do not hold.
[[nodiscard]] MARLIN_API HGDIOBJ GetCurrentObject(HDC dc, unsigned int kind);

/// Each returns the value before; GDI_ERROR, CLR_INVALID, CLR_INVALID and 0 for a wrong handle.
MARLIN_API unsigned int SetTextAlign(HDC dc, unsigned int alignment) noexcept;
MARLIN_API COLORREF SetTextColor(HDC dc, COLORREF color) noexcept;
MARLIN_API COLORREF SetBkColor(HDC dc, COLORREF color) noexcept;
MARLIN_API int SetBkMode(HDC dc, int mode) noexcept;
