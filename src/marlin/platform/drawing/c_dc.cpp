// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/bitmaps.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/drawing/painting.h>
#include <marlin/platform/drawing/text_painting.h>
#include <marlin/platform/fonts/fonts.h>

#include <cassert>
#include <utility>

using PLATFORM::detail::Contexts;

namespace {

HGDIOBJ HandleOf(const CGdiObject* object) noexcept {
    return object ? object->m_hObject : nullptr;
}

template <typename Object>
Object* Select(HDC dc, const Object* object) {
    return dynamic_cast<Object*>(CDC::SelectGdiObject(dc, HandleOf(object)));
}

}  // namespace

CDC::~CDC() {
    DeleteDC();
}

CDC* CDC::FromHandle(HDC handle) noexcept {
    return Contexts().WrapperOf(handle);
}

HDC CDC::GetSafeHdc() const noexcept {
    return m_hDC;
}

bool CDC::Attach(HDC handle) noexcept {
    assert(!m_hDC);
    if (!Contexts().Attach(handle, this)) {
        return false;
    }
    m_hDC = m_hAttribDC = handle;
    return true;
}

HDC CDC::Detach() noexcept {
    Contexts().Detach(m_hDC, this);
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

bool CDC::CreateDCA(const char* driver, const char* device, const char* output,
                    const void* initData) {
    return Attach(::CreateDCA(driver, device, output, initData));
}

bool CDC::CreateCompatibleDC(CDC* dc) {
    return Attach(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr));
}

bool CDC::DeleteDC() noexcept {
    return m_hDC && ::DeleteDC(Detach()) != 0;
}

int CDC::GetDeviceCaps(int index) const noexcept {
    return ::GetDeviceCaps(m_hAttribDC, index);
}

CGdiObject* CDC::SelectGdiObject(HDC dc, HGDIOBJ object) {
    return CGdiObject::FromHandle(::SelectObject(dc, object));
}

CGdiObject* CDC::SelectStockObject(int index) {
    return SelectGdiObject(m_hDC, ::GetStockObject(index));
}

CFont* CDC::SelectObject(CFont* font) {
    return Select(m_hDC, font);
}

CBrush* CDC::SelectObject(CBrush* brush) {
    return Select(m_hDC, brush);
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    return Select(m_hDC, bitmap);
}

int CDC::SetMapMode(int mode) noexcept {
    return ::SetMapMode(m_hDC, mode);
}

int CDC::GetMapMode() const noexcept {
    return ::GetMapMode(m_hAttribDC);
}

CSize CDC::SetWindowExt(int cx, int cy) noexcept {
    CSize before;
    ::SetWindowExtEx(m_hDC, cx, cy, &before);
    return before;
}

CSize CDC::SetViewportExt(int cx, int cy) noexcept {
    CSize before;
    ::SetViewportExtEx(m_hDC, cx, cy, &before);
    return before;
}

CPoint CDC::SetWindowOrg(int x, int y) noexcept {
    CPoint before;
    ::SetWindowOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::SetViewportOrg(int x, int y) noexcept {
    CPoint before;
    ::SetViewportOrgEx(m_hDC, x, y, &before);
    return before;
}

unsigned int CDC::SetTextAlign(unsigned int alignment) noexcept {
    return ::SetTextAlign(m_hDC, alignment);
}

COLORREF CDC::SetTextColor(COLORREF color) noexcept {
    return ::SetTextColor(m_hDC, color);
}

COLORREF CDC::SetBkColor(COLORREF color) noexcept {
    return ::SetBkColor(m_hDC, color);
}

int CDC::SetBkMode(int mode) noexcept {
    return ::SetBkMode(m_hDC, mode);
}

unsigned int CDC::GetOutlineTextMetricsA(unsigned int size, OUTLINETEXTMETRICA* metrics) const {
    return ::GetOutlineTextMetricsA(m_hAttribDC, size, metrics);
}

CSize CDC::GetTextExtent(const CString& text) const noexcept {
    CSize size;
    ::GetTextExtentPoint32A(m_hAttribDC, text, text.GetLength(), &size);
    return size;
}

void CDC::FillRect(const RECT* rect, CBrush* brush) noexcept {
    ::FillRect(m_hDC, rect, static_cast<HBRUSH>(HandleOf(brush)));
}

void CDC::FrameRect(const RECT* rect, CBrush* brush) noexcept {
    ::FrameRect(m_hDC, rect, static_cast<HBRUSH>(HandleOf(brush)));
}

bool CDC::TextOut(int x, int y, const char* text, int count) {
    return ::TextOutA(m_hDC, x, y, text, count) != 0;
}

bool CDC::TextOut(int x, int y, const CString& text) {
    return TextOut(x, y, text, text.GetLength());
}

COLORREF CDC::GetPixel(int x, int y) const noexcept {
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) noexcept {
    return ::SetPixel(m_hDC, x, y, color);
}
