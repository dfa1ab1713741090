// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/handle_table.h>
#include <marlin/platform/drawing/detail/mapping.h>

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

namespace PLATFORM::detail {

class FontFace;

/// The bits of a color word that mean something.
inline constexpr COLORREF EveryColorBit = 0xFFFFFF;

struct FontRecord {
    int Height = 0;
    /// Null when the font cannot be measured, and for one in stock, whose face is found when it is
    /// needed.
    const FontFace* Face = nullptr;
    bool Underline = false;
    bool StrikeOut = false;
    bool Stock = false;
};

struct BrushRecord {
    COLORREF Color = 0;
};

struct BitmapRecord {
    int Width = 0;
    int Height = 0;
    /// Rows from the top; blue in the low byte, then green and red.
    std::vector<std::uint32_t> Pixels;
};

using ObjectRecord = std::variant<FontRecord, BrushRecord, BitmapRecord>;
inline constexpr std::size_t FontKind = 0;
inline constexpr std::size_t BitmapKind = 2;

struct ContextRecord {
    Mapping Map;
    /// The object of each kind; no bitmap for a context of the display.
    std::array<HGDIOBJ, std::variant_size_v<ObjectRecord>> Selected = {
        GetStockObject(SYSTEM_FONT), GetStockObject(WHITE_BRUSH), nullptr};
    COLORREF TextColor = 0;
    COLORREF BackColor = 0xFFFFFF;
    unsigned int Alignment = 0;
};

using ContextTable = HandleTable<ContextRecord, CDC, 1>;
using ObjectTable = HandleTable<ObjectRecord, CGdiObject, 2>;

/// The tables of the process. Made when first asked for and never destroyed, because objects that
/// draw may be made earlier and destroyed later than any of the library's.
[[nodiscard]] ContextTable& Contexts();
[[nodiscard]] ObjectTable& Objects();

/// Null when the handle is not that of an object of this kind.
template <typename Kind>
[[nodiscard]] Kind* FindObject(HGDIOBJ handle) noexcept {
    return std::get_if<Kind>(Objects().Find(handle));
}

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
