// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

CBrush::CBrush(COLORREF color) {
    using namespace PLATFORM::detail;
    Own(Objects().Add(BrushRecord{color & EveryColorBit}));
}
