// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>

class CDC;

/// A bitmap as `CBitmap::GetBitmap` describes it.
struct BITMAP {
    int bmType = 0;                   ///< always 0
    int bmWidth = 0;                  ///< in pixels
    int bmHeight = 0;                 ///< in pixels
    int bmWidthBytes = 0;             ///< of a row
    unsigned short bmPlanes = 1;      ///< always 1
    unsigned short bmBitsPixel = 32;  ///< always 32
    void* bmBits = nullptr;           ///< null: `CBitmap::GetBitmapBits` has the pixels
};

/// A surface of 32-bit pixels, painted through the memory context that it is selected into.
class MARLIN_API CBitmap : public CGdiObject {
public:
    /// Black pixels. False without a context, for a side outside 1 to 32767, more than 2^26 pixels
    /// or too little memory.
    bool CreateCompatibleBitmap(CDC* dc, int width, int height);
    /// Returns the size of the structure; 0, and leaves the target as it was, without a bitmap.
    int GetBitmap(BITMAP* bitmap) const noexcept;
    /// Copies up to `count` bytes of pixels, rows from the top, each pixel as blue, green, red and
    /// an unused 0. Returns how many bytes; 0 without a bitmap.
    unsigned long GetBitmapBits(unsigned long count, void* bits) const noexcept;
};
