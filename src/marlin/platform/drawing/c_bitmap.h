// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/bitmaps.h>
#include <marlin/platform/drawing/c_gdi_object.h>

class CDC;

/// A surface of 32-bit pixels, painted through the memory context that it is selected into.
class MARLIN_API CBitmap : public CGdiObject {
public:
    CBitmap() noexcept = default;

    /// Null when the handle is not that of a bitmap.
    [[nodiscard]] static CBitmap* FromHandle(HBITMAP handle) noexcept;
    [[nodiscard]] operator HBITMAP() const noexcept;

    /// Black pixels; false for a size that `::CreateCompatibleBitmap` refuses.
    bool CreateCompatibleBitmap(CDC* dc, int width, int height);
    /// Returns 0, and leaves the target as it was, without a bitmap.
    int GetBitmap(BITMAP* bitmap) const noexcept;
    /// As `::GetBitmapBits`.
    unsigned long GetBitmapBits(unsigned long count, void* bits) const noexcept;
};
