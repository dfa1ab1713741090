// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/text_outline.h>

#include <vector>

namespace PLATFORM::detail {

/// A place on a surface and two directions: the pixels that one unit to the right and one unit
/// up lead to.
struct Placement {
    double X = 0;
    double Y = 0;
    double RightX = 1;
    double RightY = 0;
    double UpX = 0;
    double UpY = -1;
};

/// Paints the inside of the contours, smoothed, on the pixels of the surface. Not painted are
/// shapes that reach further than 32,000 pixels from the surface's corner or are made of more
/// than 32,000 points.
void PaintShape(const std::vector<OutlineStep>& steps, const Placement& placement, COLORREF color,
                BitmapRecord& surface);

}  // namespace PLATFORM::detail
