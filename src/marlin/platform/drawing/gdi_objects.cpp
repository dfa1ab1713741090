// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <array>
#include <utility>

namespace {

using namespace PLATFORM::detail;

constexpr int stockCount = DEFAULT_GUI_FONT + 1;
using StockObjects = std::array<HGDIOBJ, stockCount>;

HGDIOBJ MakeStockFont(int height, const char* face) {
    FontRecord font;
    font.Height = height;
    font.Stock = true;
    font.StockFace = face;
    return Fonts().Add(std::move(font));
}

// Numbers without an object, pens and palettes among them, stay null.
StockObjects MakeStockObjects() {
    StockObjects objects{};
    const auto set = [&](int index, HGDIOBJ object) {
        objects[static_cast<std::size_t>(index)] = object;
    };
    constexpr COLORREF colors[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0, 0};
    for (int i = WHITE_BRUSH; i <= NULL_BRUSH; ++i) {
        set(i, Brushes().Add({colors[i], i == NULL_BRUSH, true}));
    }
    for (const int i : {OEM_FIXED_FONT, ANSI_FIXED_FONT, SYSTEM_FIXED_FONT}) {
        set(i, MakeStockFont(16, "Courier New"));
    }
    for (const int i : {ANSI_VAR_FONT, SYSTEM_FONT, DEVICE_DEFAULT_FONT}) {
        set(i, MakeStockFont(16, "Arial"));
    }
    set(DEFAULT_GUI_FONT, MakeStockFont(-11, "Arial"));
    return objects;
}

template <typename Table>
BOOL Delete(Table& table, HGDIOBJ handle) noexcept {
    const auto* record = table.Find(handle);
    // Deleting a stock object succeeds, because wrappers delete whatever they hold.
    return record && (record->Stock || table.Remove(handle));
}

BOOL DeleteBitmap(HGDIOBJ handle) noexcept {
    const BitmapRecord* bitmap = Bitmaps().Find(handle);
    return bitmap && !bitmap->Holder && Delete(Bitmaps(), handle);
}

}  // namespace

HGDIOBJ GetStockObject(int index) {
    static const StockObjects objects = MakeStockObjects();
    return index >= 0 && index < stockCount ? objects[static_cast<std::size_t>(index)] : nullptr;
}

BOOL DeleteObject(HGDIOBJ handle) noexcept {
    return Delete(Fonts(), handle) || Delete(Brushes(), handle) || DeleteBitmap(handle);
}

HBRUSH CreateSolidBrush(COLORREF color) {
    return static_cast<HBRUSH>(Brushes().Add({color & 0xFFFFFFU, false, false}));
}

std::size_t PLATFORM::LiveDrawingObjects() {
    const auto isMade = [](const auto& record) { return !record.Stock; };
    return Contexts().CountIf([](const ContextRecord&) { return true; }) + Fonts().CountIf(isMade) +
           Brushes().CountIf(isMade) + Bitmaps().CountIf(isMade);
}
