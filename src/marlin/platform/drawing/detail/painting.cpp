// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/painting.h>

#include <algorithm>

namespace PLATFORM::detail {

namespace {

std::ptrdiff_t PlaceOf(const BitmapRecord& surface, int x, int y) noexcept {
    return static_cast<std::ptrdiff_t>(y) * surface.Width + x;
}

}  // namespace

void FillPixels(BitmapRecord& surface, const RECT& pixels, COLORREF color) noexcept {
    const int left = std::max(pixels.left, 0);
    const int width = std::min(pixels.right, surface.Width) - left;
    const int bottom = std::min(pixels.bottom, surface.Height);
    for (int y = std::max(pixels.top, 0); y < bottom && width > 0; ++y) {
        std::fill_n(surface.Pixels.begin() + PlaceOf(surface, left, y), width, PixelOf(color));
    }
}

void Fill(const ContextRecord& context, const RECT& rect, COLORREF color) noexcept {
    if (BitmapRecord* const surface = SurfaceOf(context)) {
        const POINT a = context.Map.ToDevice({rect.left, rect.top});
        const POINT b = context.Map.ToDevice({rect.right, rect.bottom});
        FillPixels(*surface,
                   {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)},
                   color);
    }
}

COLORREF ColorAt(const ContextRecord& context, POINT logical) noexcept {
    const BitmapRecord* const surface = SurfaceOf(context);
    const POINT at = context.Map.ToDevice(logical);
    if (!surface || at.x < 0 || at.x >= surface->Width || at.y < 0 || at.y >= surface->Height) {
        return CLR_INVALID;
    }
    return ColorOf(*(surface->Pixels.begin() + PlaceOf(*surface, at.x, at.y)));
}

}  // namespace PLATFORM::detail
