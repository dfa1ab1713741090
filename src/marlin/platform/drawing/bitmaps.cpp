// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/bitmaps.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

using namespace PLATFORM::detail;

constexpr int MaxSide = 32767;
constexpr int MaxPixels = 1 << 26;  // 256 MiB

// The pixel at a logical position; null where the context paints none.
std::uint32_t* PixelAt(HDC dc, int x, int y) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    BitmapRecord* surface = context ? SurfaceOf(*context) : nullptr;
    if (!surface) {
        return nullptr;
    }
    const POINT at = context->Map.ToDevice({x, y});
    if (at.x < 0 || at.x >= surface->Width || at.y < 0 || at.y >= surface->Height) {
        return nullptr;
    }
    return &surface
                ->Pixels[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(surface->Width) +
                         static_cast<std::size_t>(at.x)];
}

}  // namespace

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
    // Two sides within the limit multiply without overflow.
    const bool sized = width > 0 && width <= MaxSide && height > 0 && height <= MaxSide &&
                       width * height <= MaxPixels;
    if (!Contexts().Find(dc) || !sized) {
        return nullptr;
    }
    BitmapRecord bitmap;
    bitmap.Width = width;
    bitmap.Height = height;
    try {
        bitmap.Pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    return static_cast<HBITMAP>(Bitmaps().Add(std::move(bitmap)));
}

int GetObjectA(HGDIOBJ handle, int size, void* object) noexcept {
    const BitmapRecord* bitmap = Bitmaps().Find(handle);
    constexpr int needed = sizeof(BITMAP);
    if (!bitmap || !object || size < needed) {
        return 0;
    }
    const BITMAP told{0, bitmap->Width, bitmap->Height, bitmap->Width * 4, 1, 32, nullptr};
    std::memcpy(object, &told, sizeof told);
    return needed;
}

int GetBitmapBits(HBITMAP handle, int count, void* bits) noexcept {
    const BitmapRecord* bitmap = Bitmaps().Find(handle);
    if (!bitmap || !bits || count <= 0) {
        return 0;
    }
    const std::size_t copied =
        std::min(static_cast<std::size_t>(count), bitmap->Pixels.size() * sizeof(std::uint32_t));
    std::memcpy(bits, bitmap->Pixels.data(), copied);
    return static_cast<int>(copied);
}

COLORREF GetPixel(HDC dc, int x, int y) noexcept {
    const std::uint32_t* pixel = PixelAt(dc, x, y);
    return pixel ? ColorOf(*pixel) : CLR_INVALID;
}

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color) noexcept {
    std::uint32_t* pixel = PixelAt(dc, x, y);
    if (!pixel) {
        return CLR_INVALID;
    }
    *pixel = PixelOf(color);
    return ColorOf(*pixel);
}
