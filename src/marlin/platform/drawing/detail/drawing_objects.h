// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/detail/handle_table.h>
#include <marlin/platform/drawing/detail/mapping.h>

#include <cstdint>
#include <vector>

namespace PLATFORM::detail {

class FontFace;

struct FontRecord {
    int Height = 0;
    int Escapement = 0;
    /// Null when the font cannot be measured.
    const FontFace* Face = nullptr;
    bool Underline = false;
    bool StrikeOut = false;
    bool Stock = false;
    /// A stock font has this in place of its face, which is found when it is needed.
    const char* StockFace = nullptr;
};

struct BrushRecord {
    COLORREF Color = 0;
    bool Hollow = false;
    bool Stock = false;
};

struct BitmapRecord {
    int Width = 0;
    int Height = 0;
    /// Rows from the top; blue in the low byte, then green and red.
    std::vector<std::uint32_t> Pixels;
    /// The context that holds it; none holds a stock bitmap for itself.
    HDC Holder = nullptr;
    bool Stock = false;
};

struct ContextRecord {
    Mapping Map;
    HGDIOBJ Font = nullptr;
    HGDIOBJ Brush = nullptr;
    HGDIOBJ Bitmap = nullptr;
    COLORREF TextColor = 0;
    COLORREF BackColor = 0xFFFFFF;
    int BackMode = OPAQUE;
    unsigned int Alignment = 0;
    bool Memory = false;
};

using ContextTable = HandleTable<ContextRecord, CDC, CDC, OBJECT_KIND::CONTEXT>;
using FontTable = HandleTable<FontRecord, CFont, CGdiObject, OBJECT_KIND::FONT>;
using BrushTable = HandleTable<BrushRecord, CBrush, CGdiObject, OBJECT_KIND::BRUSH>;
using BitmapTable = HandleTable<BitmapRecord, CBitmap, CGdiObject, OBJECT_KIND::BITMAP>;

/// The tables of the process. Made when first asked for and never destroyed, because objects that
/// draw may be made earlier and destroyed later than any of the library's.
[[nodiscard]] ContextTable& Contexts();
[[nodiscard]] FontTable& Fonts();
[[nodiscard]] BrushTable& Brushes();
[[nodiscard]] BitmapTable& Bitmaps();

/// The bitmap that a context paints on; null for the display and for a context without one.
[[nodiscard]] BitmapRecord* SurfaceOf(const ContextRecord& context) noexcept;

/// The bitmap without pixels of a new memory context; any number of contexts may have it.
[[nodiscard]] HGDIOBJ EmptyBitmap();

/// A pixel as a bitmap has it, from a color and back.
[[nodiscard]] constexpr std::uint32_t PixelOf(COLORREF color) noexcept {
    return static_cast<std::uint32_t>((color & 0xFFU) << 16U | (color & 0xFF00U) |
                                      (color >> 16U & 0xFFU));
}
[[nodiscard]] constexpr COLORREF ColorOf(std::uint32_t pixel) noexcept {
    return PixelOf(pixel);
}

}  // namespace PLATFORM::detail
