// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/drawing_objects.h>

#include <memory>

namespace PLATFORM::detail {

ContextTable& Contexts() {
    static ContextTable& table = *std::make_unique<ContextTable>().release();
    return table;
}

ObjectTable& Objects() {
    static ObjectTable& table = *std::make_unique<ObjectTable>().release();
    return table;
}

BitmapRecord* SurfaceOf(const ContextRecord& context) noexcept {
    return FindObject<BitmapRecord>(context.Selected[BitmapKind]);
}

HGDIOBJ EmptyBitmap() {
    static const HGDIOBJ empty = Objects().Add(BitmapRecord());
    return empty;
}

}  // namespace PLATFORM::detail
