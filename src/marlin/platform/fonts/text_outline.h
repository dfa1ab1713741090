// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

#include <vector>

namespace PLATFORM {

/// A point in design units of a face, y upwards; (0, 0) is the start of the text's baseline.
struct OutlinePoint {
    double X = 0;
    double Y = 0;
};

/// One step of a pen: it jumps to `To`, or draws there straight or by a Bezier curve of one or two
/// control points.
struct OutlineStep {
    enum KIND { MOVE, LINE, CONIC, CUBIC };
    KIND Kind = MOVE;
    OutlinePoint To;
    OutlinePoint Control1;
    OutlinePoint Control2;
};

/// The shape of a text: closed contours to be filled by the non-zero winding rule, from the very
/// face that measures the text.
struct TextOutline {
    std::vector<OutlineStep> Steps;
    /// The sum of advances, and the cell above and below the baseline; design units.
    double Advance = 0;
    double Ascent = 0;
    double Descent = 0;
    /// Logical units a design unit.
    double Scale = 0;
};

/// The outline of `count` bytes of text in the context's font, with the lines under and through
/// it that the font asks for. False, and the target unchanged, where it cannot be measured.
[[nodiscard]] MARLIN_API bool GetTextOutline(HDC dc, const char* text, int count,
                                             TextOutline& outline);

}  // namespace PLATFORM
