// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/rect.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/platform/text/c_string.h>

class CBrush;
class CGdiObject;

/// Wraps a device context and owns it: destruction ends the context, and so does creating another
/// one, unless that fails. Made empty; without a context its operations return 0, null or false and
/// change nothing. A wrapper from `FromHandle` owns nothing.
///
/// A context holds the objects, colors and modes to draw with, and the mapping of logical
/// coordinates to those of the device. One of the display answers for a fixed virtual display of
/// 1920 by 1080 pixels at 96 dots an inch, and paints nowhere; a memory context paints on the
/// bitmap selected into it, cut to its edges.
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
    HDC m_hDC = nullptr;        ///< For output; null while empty.
    HDC m_hAttribDC = nullptr;  ///< For queries; here always the same.

    CDC() noexcept = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC();

    /// A wrapper that lives as long as the context; null when the handle is not that of a context.
    [[nodiscard]] static CDC* FromHandle(HDC handle) noexcept;
    [[nodiscard]] operator HDC() const noexcept { return m_hDC; }

    /// A context of the display, for the driver "DISPLAY" in upper or lower case; false for any
    /// other. The other arguments are not used.
    bool CreateDCA(const char* driver, const char* device, const char* output,
                   const void* initData);
    /// A memory context like the given one; null means the display.
    bool CreateCompatibleDC(CDC* dc);
    /// Ends the context. False without one.
    bool DeleteDC() noexcept;

    /// 0 for an unknown index.
    [[nodiscard]] int GetDeviceCaps(int index) const noexcept;

    /// Selects a font, brush or bitmap and returns the one before. Returns null, and changes
    /// nothing, for a wrong or null handle and for a bitmap in a context of the display. A new
    /// memory context has a bitmap without pixels.
    static CGdiObject* SelectGdiObject(HDC dc, HGDIOBJ object);
    virtual CGdiObject* SelectStockObject(int index);
    CGdiObject* SelectObject(const CGdiObject* object);

    /// Returns the mode before; 0, and nothing changed, for an unknown mode. Resets both extents.
    int SetMapMode(int mode) noexcept;
    /// So many logical units are so many pixels; negative ones turn an axis round. They are set in
    /// MM_ISOTROPIC alone, where the viewport's is cut so that a unit is as wide as it is high; 0
    /// is refused. Return the extent before.
    CSize SetWindowExt(int cx, int cy) noexcept;
    CSize SetViewportExt(int cx, int cy) noexcept;

    /// Each returns the value before; GDI_ERROR or CLR_INVALID without a context.
    unsigned int SetTextAlign(unsigned int alignment) noexcept;
    COLORREF SetTextColor(COLORREF color) noexcept;
    COLORREF SetBkColor(COLORREF color) noexcept;

    /// Fills the outline metrics of the context's font into at least 212 bytes, without names.
    /// Returns 212, also for a null buffer; 0, and fills nothing, for a smaller buffer or a font
    /// that cannot be measured.
    unsigned int GetOutlineTextMetricsA(unsigned int size, OUTLINETEXTMETRICA* metrics) const;

    /// Fills the rectangle, given in logical coordinates in any order of its edges.
    void FillRect(const RECT* rect, CBrush* brush) noexcept;
    /// Paints the edge of the rectangle, one logical unit wide, inside it.
    void FrameRect(const RECT* rect, CBrush* brush) noexcept;
    /// Paints a text on a cell of the background color. False for a font that cannot be measured.
    bool TextOut(int x, int y, const CString& text);
    /// The color at logical coordinates; CLR_INVALID off the surface.
    [[nodiscard]] COLORREF GetPixel(int x, int y) const noexcept;

private:
    bool Own(HDC dc) noexcept;
};
