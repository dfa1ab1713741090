// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/text_outline.h>

#include <vector>

namespace PLATFORM::detail {

/// Where a shape is painted: the pixel of its origin, and the pixels of one unit.
struct Placement {
    double X = 0;
    double Y = 0;
    double ScaleX = 1;
    double ScaleY = 1;
};

/// Paints the inside of the contours, with smooth edges, on the surface. A shape that reaches
/// further than 32,000 pixels from the surface's corner, or has more than 32,000 points, is not
/// painted.
void PaintShape(const std::vector<OutlineStep>& steps, const Placement& placement, COLORREF color,
                BitmapRecord& surface);

}  // namespace PLATFORM::detail
