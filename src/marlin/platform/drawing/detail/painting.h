// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>

namespace PLATFORM::detail {

/// Paints a rectangle of pixels, as much of it as lies on the surface.
void FillPixels(BitmapRecord& surface, const RECT& pixels, COLORREF color) noexcept;

/// The same for a rectangle in the logical coordinates of a context, in any order of its edges.
void Fill(const ContextRecord& context, const RECT& rect, COLORREF color) noexcept;

/// CLR_INVALID off the surface and without one.
[[nodiscard]] COLORREF ColorAt(const ContextRecord& context, POINT logical) noexcept;

}  // namespace PLATFORM::detail
