// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

#include <cstddef>

/// Deletes a font, brush or bitmap. Returns 0 for a wrong handle and for a bitmap that a context
/// holds; 1 else. Stock objects stay. A font or brush deleted while selected leaves its context
/// with none.
MARLIN_API BOOL DeleteObject(HGDIOBJ handle) noexcept;

/// A brush or font that is always there, the same one at each call; null for other numbers.
[[nodiscard]] MARLIN_API HGDIOBJ GetStockObject(int index);

[[nodiscard]] MARLIN_API HBRUSH CreateSolidBrush(COLORREF color);

namespace PLATFORM {

/// How many contexts, fonts, brushes and bitmaps of the process are made and not yet deleted,
/// stock objects aside. For finding leaks: it walks all objects.
[[nodiscard]] MARLIN_API std::size_t LiveDrawingObjects();

}  // namespace PLATFORM
