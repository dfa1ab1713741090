// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_gdi_object.h>

namespace {

CGdiObject* Select(CDC* dc, const CGdiObject* object) {
    return dc ? CDC::SelectGdiObject(dc->m_hDC, object ? object->m_hObject : nullptr) : nullptr;
}

}  // namespace

GDISelector::GDISelector(CDC* dc, CGdiObject& object) : m_DC(dc), m_Previous(Select(dc, &object)) {}

GDISelector::GDISelector(CDC* dc, void* handle)
    : m_DC(dc), m_Previous(Select(dc, CGdiObject::FromHandle(handle))) {}

GDISelector::GDISelector(CDC* dc, int stockIndex) : m_DC(dc) {
    if (dc) {
        // Through the virtual call, which a host's context may have made its own.
        dc->SelectStockObject(stockIndex);
    }
}

GDISelector::~GDISelector() {
    if (m_Previous) {
        Select(m_DC, m_Previous);
    }
}
