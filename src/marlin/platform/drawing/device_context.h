// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/size.h>

// A device context: what is selected for drawing, and the mapping from logical to device
// coordinates, x to the right and y downwards. A display context answers for a fixed virtual
// display and paints nowhere; a memory context paints on the bitmap selected into it. Calls
// given a wrong handle return 0 and change nothing.

/// A context of the display, for the driver "DISPLAY" in any case; null for any other. The rest
/// of the arguments is not used.
[[nodiscard]] MARLIN_API HDC CreateDCA(const char* driver, const char* device, const char* output,
                                       const void* initData);
/// A memory context; `dc` null stands for the display.
[[nodiscard]] MARLIN_API HDC CreateCompatibleDC(HDC dc);
/// Ends the context; objects selected into it are free again.
MARLIN_API BOOL DeleteDC(HDC dc) noexcept;

/// 1920 by 1080 pixels of 32 bits at 96 dots an inch; 0 for what it does not tell.
[[nodiscard]] MARLIN_API int GetDeviceCaps(HDC dc, int index) noexcept;

/// Selects a font, brush or bitmap and returns the one before it. Null, and nothing changed,
/// for a wrong or null handle, a bitmap for the display or one that another context holds.
/// Memory contexts begin with a bitmap without pixels; selecting it again lets a bitmap go.
MARLIN_API HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
/// Null for a kind that contexts do not hold.
[[nodiscard]] MARLIN_API HGDIOBJ GetCurrentObject(HDC dc, unsigned int kind);

/// Returns the mode before; 0, and nothing changed, for an unknown mode. The fixed modes reset
/// both extents; MM_ISOTROPIC and MM_ANISOTROPIC keep them to be set.
MARLIN_API int SetMapMode(HDC dc, int mode) noexcept;
[[nodiscard]] MARLIN_API int GetMapMode(HDC dc) noexcept;
/// Extents count in the two free modes alone, are not 0 and may be negative; in MM_ISOTROPIC
/// the viewport's is cut so that a unit is as wide as it is high. `before` may be null.
MARLIN_API BOOL SetWindowExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept;
MARLIN_API BOOL SetViewportExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept;
MARLIN_API BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* before) noexcept;
MARLIN_API BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* before) noexcept;
MARLIN_API BOOL GetWindowExtEx(HDC dc, SIZE* extent) noexcept;
MARLIN_API BOOL GetViewportExtEx(HDC dc, SIZE* extent) noexcept;
/// Maps points in place, rounded to the nearest unit and cut to 32 bits.
MARLIN_API BOOL LPtoDP(HDC dc, POINT* points, int count) noexcept;
MARLIN_API BOOL DPtoLP(HDC dc, POINT* points, int count) noexcept;

/// These return the value before; GDI_ERROR, CLR_INVALID or 0 for a wrong handle.
MARLIN_API unsigned int SetTextAlign(HDC dc, unsigned int alignment) noexcept;
MARLIN_API COLORREF SetTextColor(HDC dc, COLORREF color) noexcept;
MARLIN_API COLORREF SetBkColor(HDC dc, COLORREF color) noexcept;
MARLIN_API int SetBkMode(HDC dc, int mode) noexcept;
