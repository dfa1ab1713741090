// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_gdi_object.h>

namespace {

// The handle of the object before; null when nothing was selected.
HGDIOBJ Select(CDC* dc, HGDIOBJ object) {
    const CGdiObject* const previous = dc ? CDC::SelectGdiObject(dc->m_hDC, object) : nullptr;
    return previous ? previous->m_hObject : nullptr;
}

}  // namespace

GDISelector::GDISelector(CDC* dc, CGdiObject& object) : GDISelector(dc, object.m_hObject) {}

GDISelector::GDISelector(CDC* dc, void* handle) : m_DC(dc), m_Previous(Select(dc, handle)) {}

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
