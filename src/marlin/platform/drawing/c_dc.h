// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/context_mapping.h>
#include <marlin/platform/drawing/device_context.h>
#include <marlin/platform/drawing/rect.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/platform/text/c_string.h>

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;

/// Wraps a device context and owns it: destruction ends the context, unless it was detached. Made
/// empty. The operations are the free functions of the same names; without a context they return
/// their failure results. A wrapper from `FromHandle` owns nothing.
/// @code
/// CBitmap bitmap;  // before the context, which then ends first
/// CBrush red(0x0000FF);
/// CDC dc;
/// dc.CreateCompatibleDC(nullptr);
/// bitmap.CreateCompatibleBitmap(&dc, 64, 32);
/// dc.SelectObject(&bitmap);
/// dc.FillRect(CRect(0, 0, 64, 32), &red);
/// dc.TextOut(4, 4, "12.5");
/// assert(dc.GetPixel(63, 31) == 0x0000FF);
/// @endcode
class MARLIN_API CDC {
public:
    /// The context for output and the one for queries; here always the same.
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;

    CDC() noexcept = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC();

    /// The wrapper that the handle is attached to, or else one that lives as long as the context;
    /// null when the handle is not that of a context.
    [[nodiscard]] static CDC* FromHandle(HDC handle) noexcept;
    [[nodiscard]] HDC GetSafeHdc() const noexcept;
    [[nodiscard]] operator HDC() const noexcept { return GetSafeHdc(); }

    bool Attach(HDC handle) noexcept;
    HDC Detach() noexcept;
    bool CreateDCA(const char* driver, const char* device, const char* output,
                   const void* initData);
    /// Null means the display.
    bool CreateCompatibleDC(CDC* dc);
    bool DeleteDC() noexcept;

    [[nodiscard]] int GetDeviceCaps(int index) const noexcept;

    /// Selects by handles. Returns the object that was selected before, or null on failure.
    static CGdiObject* SelectGdiObject(HDC dc, HGDIOBJ object);
    virtual CGdiObject* SelectStockObject(int index);
    CFont* SelectObject(CFont* font);
    CBrush* SelectObject(CBrush* brush);
    CBitmap* SelectObject(CBitmap* bitmap);

    int SetMapMode(int mode) noexcept;
    [[nodiscard]] int GetMapMode() const noexcept;
    CSize SetWindowExt(int cx, int cy) noexcept;
    CSize SetViewportExt(int cx, int cy) noexcept;
    CPoint SetWindowOrg(int x, int y) noexcept;
    CPoint SetViewportOrg(int x, int y) noexcept;

    unsigned int SetTextAlign(unsigned int alignment) noexcept;
    COLORREF SetTextColor(COLORREF color) noexcept;
    COLORREF SetBkColor(COLORREF color) noexcept;
    int SetBkMode(int mode) noexcept;

    unsigned int GetOutlineTextMetricsA(unsigned int size, OUTLINETEXTMETRICA* metrics) const;
    [[nodiscard]] CSize GetTextExtent(const CString& text) const noexcept;

    void FillRect(const RECT* rect, CBrush* brush) noexcept;
    void FrameRect(const RECT* rect, CBrush* brush) noexcept;
    bool TextOut(int x, int y, const char* text, int count);
    bool TextOut(int x, int y, const CString& text);
    [[nodiscard]] COLORREF GetPixel(int x, int y) const noexcept;
    COLORREF SetPixel(int x, int y, COLORREF color) noexcept;
};
