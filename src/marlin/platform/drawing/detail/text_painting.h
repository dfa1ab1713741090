// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>

#include <string_view>

namespace PLATFORM::detail {

/// Paints a text with the font, colors and alignment of a context on its surface; the display has
/// none, and only success is reported. False for a font that cannot be measured.
bool PaintText(HDC dc, POINT at, std::string_view text);

}  // namespace PLATFORM::detail
