// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/device_context.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <utility>

namespace {

using namespace PLATFORM;
using namespace PLATFORM::detail;

// Sets a value of a context and returns the one before, or the failure value.
template <typename Value>
Value Replace(HDC dc, Value ContextRecord::*member, Value value, Value failure) noexcept {
    ContextRecord* context = Contexts().Find(dc);
    return context ? std::exchange(context->*member, value) : failure;
}

// Threads share the stock bitmap, which no context holds for itself.
void LetGo(const ContextRecord& context) noexcept {
    BitmapRecord* surface = SurfaceOf(context);
    if (surface && !surface->Stock) {
        surface->Holder = nullptr;
    }
}

HGDIOBJ Hold(HDC dc, ContextRecord& context, HGDIOBJ object, BitmapRecord& bitmap) noexcept {
    if (!context.Memory || bitmap.Holder) {
        return nullptr;
    }
    LetGo(context);
    if (!bitmap.Stock) {
        bitmap.Holder = dc;
    }
    return std::exchange(context.Bitmap, object);
}

// A context that was never given an object of a kind has the stock one.
HGDIOBJ OrStock(HGDIOBJ object, int index) {
    return object ? object : GetStockObject(index);
}

}  // namespace

HDC CreateDCA(const char* driver, const char*, const char*, const void*) {
    if (!driver || !MARLINSUITE::EqualIgnoringCase(driver, "DISPLAY")) {
        return nullptr;
    }
    return static_cast<HDC>(Contexts().Add({}));
}

HDC CreateCompatibleDC(HDC dc) {
    if (dc && !Contexts().Find(dc)) {
        return nullptr;
    }
    ContextRecord context;
    context.Memory = true;
    // So that selecting a first bitmap returns something to go back to.
    context.Bitmap = EmptyBitmap();
    return static_cast<HDC>(Contexts().Add(std::move(context)));
}

BOOL DeleteDC(HDC dc) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return 0;
    }
    LetGo(*context);
    return Contexts().Remove(dc);
}

int GetDeviceCaps(HDC dc, int index) noexcept {
    if (!Contexts().Find(dc)) {
        return 0;
    }
    switch (index) {
        case TECHNOLOGY:
            return DT_RASDISPLAY;
        // 1920 and 1080 pixels at 96 dots an inch, in whole millimetres.
        case HORZSIZE:
            return 508;
        case VERTSIZE:
            return 286;
        case HORZRES:
            return 1920;
        case VERTRES:
            return 1080;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        // -1 means more than 256.
        case NUMCOLORS:
            return -1;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return DotsPerInch;
        default:
            return 0;
    }
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
    ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return nullptr;
    }
    if (Fonts().Find(object)) {
        return OrStock(std::exchange(context->Font, object), SYSTEM_FONT);
    }
    if (Brushes().Find(object)) {
        return OrStock(std::exchange(context->Brush, object), WHITE_BRUSH);
    }
    BitmapRecord* bitmap = Bitmaps().Find(object);
    return bitmap ? Hold(dc, *context, object, *bitmap) : nullptr;
}

HGDIOBJ GetCurrentObject(HDC dc, unsigned int kind) {
    const ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return nullptr;
    }
    switch (kind) {
        case OBJ_FONT:
            return OrStock(context->Font, SYSTEM_FONT);
        case OBJ_BRUSH:
            return OrStock(context->Brush, WHITE_BRUSH);
        case OBJ_BITMAP:
            return context->Bitmap;
        default:
            return nullptr;
    }
}

unsigned int SetTextAlign(HDC dc, unsigned int alignment) noexcept {
    return Replace(dc, &ContextRecord::Alignment, alignment, GDI_ERROR);
}

COLORREF SetTextColor(HDC dc, COLORREF color) noexcept {
    return Replace(dc, &ContextRecord::TextColor, color & 0xFFFFFFU, CLR_INVALID);
}

COLORREF SetBkColor(HDC dc, COLORREF color) noexcept {
    return Replace(dc, &ContextRecord::BackColor, color & 0xFFFFFFU, CLR_INVALID);
}

int SetBkMode(HDC dc, int mode) noexcept {
    return mode == TRANSPARENT || mode == OPAQUE ? Replace(dc, &ContextRecord::BackMode, mode, 0)
                                                 : 0;
}
