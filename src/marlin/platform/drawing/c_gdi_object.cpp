// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_gdi_object.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

#include <algorithm>
#include <array>
#include <utility>

using namespace PLATFORM::detail;

namespace {

using StockObjects = std::array<HGDIOBJ, DEFAULT_GUI_FONT + 1>;

// Numbers without an object, pens and palettes among them, stay null.
StockObjects MakeStockObjects() {
    StockObjects objects{};
    constexpr COLORREF colors[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0, 0};
    for (std::size_t i = WHITE_BRUSH; i <= NULL_BRUSH; ++i) {
        objects[i] = Objects().Add(BrushRecord{colors[i]});
    }
    objects[SYSTEM_FONT] = Objects().Add(FontRecord{16, nullptr, false, false, true});
    objects[DEFAULT_GUI_FONT] = Objects().Add(FontRecord{-11, nullptr, false, false, true});
    return objects;
}

const StockObjects& Stock() {
    static const StockObjects objects = MakeStockObjects();
    return objects;
}

}  // namespace

HGDIOBJ GetStockObject(int index) {
    return index >= 0 && index <= DEFAULT_GUI_FONT ? Stock()[static_cast<std::size_t>(index)]
                                                   : nullptr;
}

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) noexcept {
    return Objects().WrapperOf(handle);
}

bool CGdiObject::Own(HGDIOBJ object) noexcept {
    if (object) {
        DeleteObject();
        m_hObject = object;
    }
    return object != nullptr;
}

// Stock objects stay: programs delete what a selection returns, whatever it is.
bool CGdiObject::DeleteObject() noexcept {
    const bool isStock = std::ranges::find(Stock(), m_hObject) != Stock().end();
    return !isStock && Objects().Remove(std::exchange(m_hObject, nullptr));
}
