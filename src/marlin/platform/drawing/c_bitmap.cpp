// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>

#include <algorithm>
#include <limits>

CBitmap* CBitmap::FromHandle(HBITMAP handle) noexcept {
    return dynamic_cast<CBitmap*>(CGdiObject::FromHandle(handle));
}

CBitmap::operator HBITMAP() const noexcept {
    return static_cast<HBITMAP>(m_hObject);
}

bool CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    return dc && Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

int CBitmap::GetBitmap(BITMAP* bitmap) const noexcept {
    return ::GetObjectA(m_hObject, sizeof(BITMAP), bitmap);
}

unsigned long CBitmap::GetBitmapBits(unsigned long count, void* bits) const noexcept {
    constexpr auto most = static_cast<unsigned long>(std::numeric_limits<int>::max());
    const int copied = ::GetBitmapBits(*this, static_cast<int>(std::min(count, most)), bits);
    return static_cast<unsigned long>(copied);
}
