// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <array>
#include <mutex>

namespace PLATFORM {

constinit ContextTable Contexts;
constinit FontTable Fonts;
constinit BrushTable Brushes;
constinit BitmapTable Bitmaps;

BitmapRecord* SurfaceOf(const ContextRecord& context) noexcept {
    return Bitmaps.Content(context.Bitmap);
}

std::size_t LiveDrawingObjects() {
    return Contexts.CountIf([](const ContextRecord&) { return true; }) +
           Fonts.CountIf([](const FontRecord& font) { return !font.StockFace; }) +
           Brushes.CountIf([](const BrushRecord& brush) { return !brush.Stock; }) +
           Bitmaps.CountIf([](const BitmapRecord& bitmap) { return !bitmap.Stock; });
}

namespace {

constexpr int StockCount = DEFAULT_GUI_FONT + 1;
constexpr int EmptyBitmapIndex = StockCount;
constinit std::array<std::atomic<HGDIOBJ>, StockCount + 1> stock{};
constinit std::mutex stockLock;

HGDIOBJ MakeStockBrush(int index) {
    constexpr std::array<COLORREF, 6> colors{0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0, 0};
    return Brushes.Add({colors[static_cast<std::size_t>(index)], index == NULL_BRUSH, true});
}

HGDIOBJ MakeStockFont(int index) {
    const bool fixed =
        index == OEM_FIXED_FONT || index == ANSI_FIXED_FONT || index == SYSTEM_FIXED_FONT;
    FontRecord font;
    font.Height = index == DEFAULT_GUI_FONT ? -11 : 16;
    font.StockFace = fixed ? "Courier New" : "Arial";
    return Fonts.Add(std::move(font));
}

bool IsStockFont(int index) noexcept {
    return index >= OEM_FIXED_FONT && index < StockCount && index != 15;
}

HGDIOBJ MakeStockObject(int index) {
    if (index >= WHITE_BRUSH && index <= NULL_BRUSH) {
        return MakeStockBrush(index);
    }
    if (index == EmptyBitmapIndex) {
        BitmapRecord empty;
        empty.Stock = true;
        return Bitmaps.Add(std::move(empty));
    }
    return IsStockFont(index) ? MakeStockFont(index) : nullptr;
}

// Whether an object is one that stays.
bool IsStock(const FontRecord& font) noexcept {
    return font.StockFace != nullptr;
}
bool IsStock(const BrushRecord& brush) noexcept {
    return brush.Stock;
}
bool IsStock(const BitmapRecord& bitmap) noexcept {
    return bitmap.Stock;
}

template <typename Table>
BOOL Delete(Table& table, HGDIOBJ handle) noexcept {
    const auto* record = table.Content(handle);
    return record && (IsStock(*record) || table.Remove(handle));
}

// Makes the object when it is first needed.
HGDIOBJ StockObject(int index) {
    std::atomic<HGDIOBJ>& kept = stock[static_cast<std::size_t>(index)];
    if (HGDIOBJ known = kept.load(std::memory_order_acquire)) {
        return known;
    }
    const std::scoped_lock lock(stockLock);
    if (!kept.load(std::memory_order_relaxed)) {
        kept.store(MakeStockObject(index), std::memory_order_release);
    }
    return kept.load(std::memory_order_relaxed);
}

}  // namespace

HGDIOBJ EmptyBitmap() {
    return StockObject(EmptyBitmapIndex);
}

}  // namespace PLATFORM

HGDIOBJ GetStockObject(int index) {
    return index >= 0 && index < PLATFORM::StockCount ? PLATFORM::StockObject(index) : nullptr;
}

BOOL DeleteObject(HGDIOBJ handle) noexcept {
    using namespace PLATFORM;
    switch (FontTable::KindOf(handle)) {
        case OBJECT_KIND::FONT:
            return Delete(Fonts, handle);
        case OBJECT_KIND::BRUSH:
            return Delete(Brushes, handle);
        case OBJECT_KIND::BITMAP: {
            const BitmapRecord* bitmap = Bitmaps.Content(handle);
            return bitmap && !bitmap->Holder && Delete(Bitmaps, handle);
        }
        default:
            return 0;
    }
}

HBRUSH CreateSolidBrush(COLORREF color) {
    return static_cast<HBRUSH>(PLATFORM::Brushes.Add({color & 0xFFFFFFU, false, false}));
}
