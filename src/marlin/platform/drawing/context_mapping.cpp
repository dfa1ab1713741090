// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/context_mapping.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

namespace {

using namespace PLATFORM::detail;

BOOL SetOrigin(HDC dc, POINT Mapping::*origin, POINT value, POINT* before) noexcept {
    ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return 0;
    }
    if (before) {
        *before = context->Map.*origin;
    }
    context->Map.*origin = value;
    return 1;
}

BOOL SetExtent(HDC dc, SIZE Mapping::*extent, SIZE value, SIZE* before) noexcept {
    ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return 0;
    }
    const SIZE old = context->Map.*extent;
    if (!context->Map.SetExtent(extent, value)) {
        return 0;
    }
    if (before) {
        *before = old;
    }
    return 1;
}

BOOL GetExtent(HDC dc, SIZE Mapping::*extent, SIZE* target) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    if (!context || !target) {
        return 0;
    }
    *target = context->Map.*extent;
    return 1;
}

BOOL MapPoints(HDC dc, POINT (Mapping::*map)(POINT) const noexcept, POINT* points,
               int count) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    if (!context || count < 0 || (!points && count > 0)) {
        return 0;
    }
    for (int i = 0; i < count; ++i) {
        points[i] = (context->Map.*map)(points[i]);
    }
    return 1;
}

}  // namespace

int SetMapMode(HDC dc, int mode) noexcept {
    ContextRecord* context = Contexts().Find(dc);
    const int before = context ? context->Map.Mode : 0;
    return context && context->Map.SetMode(mode) ? before : 0;
}

int GetMapMode(HDC dc) noexcept {
    const ContextRecord* context = Contexts().Find(dc);
    return context ? context->Map.Mode : 0;
}

BOOL SetWindowExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept {
    return SetExtent(dc, &Mapping::WindowExtent, {cx, cy}, before);
}

BOOL SetViewportExtEx(HDC dc, int cx, int cy, SIZE* before) noexcept {
    return SetExtent(dc, &Mapping::ViewportExtent, {cx, cy}, before);
}

BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* before) noexcept {
    return SetOrigin(dc, &Mapping::WindowOrigin, {x, y}, before);
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* before) noexcept {
    return SetOrigin(dc, &Mapping::ViewportOrigin, {x, y}, before);
}

BOOL GetWindowExtEx(HDC dc, SIZE* extent) noexcept {
    return GetExtent(dc, &Mapping::WindowExtent, extent);
}

BOOL GetViewportExtEx(HDC dc, SIZE* extent) noexcept {
    return GetExtent(dc, &Mapping::ViewportExtent, extent);
}

BOOL LPtoDP(HDC dc, POINT* points, int count) noexcept {
    return MapPoints(dc, &Mapping::ToDevice, points, count);
}

BOOL DPtoLP(HDC dc, POINT* points, int count) noexcept {
    return MapPoints(dc, &Mapping::ToLogical, points, count);
}
