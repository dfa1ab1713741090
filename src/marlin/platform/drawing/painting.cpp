// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/painting.h>

#include <algorithm>

namespace {

using namespace PLATFORM::detail;

// The part of a logical rectangle that lies on the surface, in pixels.
RECT PixelsOf(const RECT& rect, const Mapping& mapping, const BitmapRecord& surface) noexcept {
    const POINT a = mapping.ToDevice({rect.left, rect.top});
    const POINT b = mapping.ToDevice({rect.right, rect.bottom});
    return {std::max(std::min(a.x, b.x), 0), std::max(std::min(a.y, b.y), 0),
            std::min(std::max(a.x, b.x), surface.Width),
            std::min(std::max(a.y, b.y), surface.Height)};
}

void Fill(const ContextRecord& context, const RECT& rect, COLORREF color) noexcept {
    BitmapRecord* surface = SurfaceOf(context);
    if (!surface) {
        return;
    }
    const RECT pixels = PixelsOf(rect, context.Map, *surface);
    const int width = pixels.right - pixels.left;
    for (int y = pixels.top; y < pixels.bottom && width > 0; ++y) {
        const auto row = surface->Pixels.begin() + static_cast<std::ptrdiff_t>(y) * surface->Width;
        std::fill_n(row + pixels.left, width, PixelOf(color));
    }
}

// Calls the operation with the context and color that are painted with; 0 for wrong handles.
template <typename Operation>
int Paint(HDC dc, const RECT* rect, HBRUSH brush, Operation operation) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    const BrushRecord* used = Brushes().Find(brush);
    if (!context || !rect || !used) {
        return 0;
    }
    if (!used->Hollow) {
        operation(*context, used->Color);
    }
    return 1;
}

}  // namespace

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept {
    return Paint(dc, rect, brush, [&](const ContextRecord& context, COLORREF color) {
        Fill(context, *rect, color);
    });
}

int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) noexcept {
    return Paint(dc, rect, brush, [&](const ContextRecord& context, COLORREF color) {
        const auto [left, right] = std::minmax(rect->left, rect->right);
        const auto [top, bottom] = std::minmax(rect->top, rect->bottom);
        // An empty rectangle has no inside for its edge.
        if (left == right || top == bottom) {
            return;
        }
        Fill(context, {left, top, right, top + 1}, color);
        Fill(context, {left, bottom - 1, right, bottom}, color);
        Fill(context, {left, top, left + 1, bottom}, color);
        Fill(context, {right - 1, top, right, bottom}, color);
    });
}
