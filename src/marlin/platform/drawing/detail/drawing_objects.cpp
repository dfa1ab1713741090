// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

namespace PLATFORM::detail {

using MARLINSUITE::detail::ProcessObject;

ContextTable& Contexts() {
    return ProcessObject<ContextTable>();
}

ObjectTable& Objects() {
    return ProcessObject<ObjectTable>();
}

BitmapRecord* SurfaceOf(const ContextRecord& context) noexcept {
    return FindObject<BitmapRecord>(context.Selected[BitmapKind]);
}

HGDIOBJ EmptyBitmap() {
    static const HGDIOBJ empty = Objects().Add(BitmapRecord());
    return empty;
}

}  // namespace PLATFORM::detail
