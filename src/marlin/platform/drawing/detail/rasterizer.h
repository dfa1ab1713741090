// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/text_outline.h>

#include <vector>

namespace PLATFORM::detail {

/// Where a shape is painted: the pixel of its origin, and the ways in pixels of one unit to the
/// right and of one unit up.
struct Placement {
    double X = 0;
    double Y = 0;
    double RightX = 1;
    double RightY = 0;
    double UpX = 0;
    double UpY = -1;
};

/// Paints the inside of the contours, with smooth edges, on the surface. A shape that reaches
/// further than 32,000 pixels from the surface's corner, or has more than 32,000 points, is not
/// painted.
void PaintShape(const std::vector<OutlineStep>& steps, const Placement& placement, COLORREF color,
                BitmapRecord& surface);

}  // namespace PLATFORM::detail
