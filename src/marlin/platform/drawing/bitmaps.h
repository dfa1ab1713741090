// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

/// A bitmap as `GetObjectA` describes it.
struct BITMAP {
    int bmType = 0;
    int bmWidth = 0;
    int bmHeight = 0;
    int bmWidthBytes = 0;
    unsigned short bmPlanes = 0;
    unsigned short bmBitsPixel = 0;
    void* bmBits = nullptr;
};

/// Makes a bitmap of black 32-bit pixels, to be deleted by `DeleteObject`. Returns null for a wrong
/// context, a side outside 1 to 32767, more than 2^26 pixels or too little memory.
[[nodiscard]] MARLIN_API HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
/// Fills a `BITMAP` and returns its size. Returns 0, and fills nothing, when `size` is smaller or
/// the handle is not that of a bitmap.
MARLIN_API int GetObjectA(HGDIOBJ handle, int size, void* object) noexcept;
/// Copies up to `count` bytes of pixels, rows from the top, each pixel as blue, green, red and an
/// unused 0. Returns how many bytes; 0 for a wrong handle.
MARLIN_API int GetBitmapBits(HBITMAP handle, int count, void* bits) noexcept;

/// The color at logical coordinates; CLR_INVALID off the surface or for a wrong context.
[[nodiscard]] MARLIN_API COLORREF GetPixel(HDC dc, int x, int y) noexcept;
/// Returns the color that was set; CLR_INVALID where there is no such pixel.
MARLIN_API COLORREF SetPixel(HDC dc, int x, int y, COLORREF color) noexcept;
