// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/drawing_objects.h>

#include <memory>
#include <utility>

namespace PLATFORM::detail {

namespace {

template <typename Table>
Table& TheTable() {
    static Table& table = *std::make_unique<Table>().release();
    return table;
}

}  // namespace

ContextTable& Contexts() {
    return TheTable<ContextTable>();
}

FontTable& Fonts() {
    return TheTable<FontTable>();
}

BrushTable& Brushes() {
    return TheTable<BrushTable>();
}

BitmapTable& Bitmaps() {
    return TheTable<BitmapTable>();
}

BitmapRecord* SurfaceOf(const ContextRecord& context) noexcept {
    return Bitmaps().Find(context.Bitmap);
}

HGDIOBJ EmptyBitmap() {
    static void* const empty = [] {
        BitmapRecord bitmap;
        bitmap.Stock = true;
        return Bitmaps().Add(std::move(bitmap));
    }();
    return empty;
}

}  // namespace PLATFORM::detail
