// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/size.h>

// How a context maps logical coordinates to those of the device, which has x to the right and y
// downwards. Calls given a wrong handle return 0 and change nothing.

/// Returns the mode before; 0, and nothing changed, for an unknown mode. The fixed modes and
/// MM_ISOTROPIC reset both extents, MM_ANISOTROPIC keeps them; these two let them be set.
MARLIN_API int SetMapMode(HDC dc, int mode) noexcept;
[[nodiscard]] MARLIN_API int GetMapMode(HDC dc) noexcept;
/// In the fixed modes these succeed and change nothing. Extents of 0 are refused, negative ones
/// turn an axis round; in MM_ISOTROPIC the viewport's is cut so that a unit is as wide as it is
/// high. `before` may be null.
MARLIN_API BOOL SetWindowExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept;
MARLIN_API BOOL SetViewportExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept;
MARLIN_API BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* before) noexcept;
MARLIN_API BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* before) noexcept;
MARLIN_API BOOL GetWindowExtEx(HDC dc, SIZE* extent) noexcept;
MARLIN_API BOOL GetViewportExtEx(HDC dc, SIZE* extent) noexcept;
/// Maps points in place, rounded to the nearest unit and cut to 32 bits.
MARLIN_API BOOL LPtoDP(HDC dc, POINT* points, int count) noexcept;
MARLIN_API BOOL DPtoLP(HDC dc, POINT* points, int count) noexcept;
