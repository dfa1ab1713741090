// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

#include <cstddef>

/// Deletes a font, brush or bitmap. Returns 0 for a wrong handle and for a bitmap that a context
/// holds, else 1, also for a stock object, which stays. A context whose font or brush is deleted
/// has none.
MARLIN_API BOOL DeleteObject(HGDIOBJ handle) noexcept;

/// A brush or font of the platform, the same one at each call; null for an unknown number.
[[nodiscard]] MARLIN_API HGDIOBJ GetStockObject(int index);

[[nodiscard]] MARLIN_API HBRUSH CreateSolidBrush(COLORREF color);

namespace PLATFORM {

/// Counts the contexts, fonts, brushes and bitmaps that the process has made and not yet deleted,
/// without stock objects. Meant for finding leaks: it looks at all objects.
[[nodiscard]] MARLIN_API std::size_t LiveDrawingObjects();

}  // namespace PLATFORM
