// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/gdi_objects.h>

CBrush* CBrush::FromHandle(HBRUSH handle) noexcept {
    return dynamic_cast<CBrush*>(CGdiObject::FromHandle(handle));
}

CBrush::operator HBRUSH() const noexcept {
    return static_cast<HBRUSH>(m_hObject);
}

bool CBrush::CreateSolidBrush(COLORREF color) {
    return Attach(::CreateSolidBrush(color));
}
