// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

#include <vector>

namespace PLATFORM {

/// A point in design units of a face, y upwards, from the start of the text's baseline.
struct OutlinePoint {
    double X = 0;
    double Y = 0;
};

/// One step of a pen: it jumps to `To`, or draws a line or a Bezier curve of one or two control
/// points there.
struct OutlineStep {
    /// How the pen gets to `To`.
    enum KIND {
        MOVE,   ///< without a line
        LINE,   ///< straight
        CONIC,  ///< by a curve of `Control1`
        CUBIC,  ///< by a curve of `Control1` and `Control2`
    };
    KIND Kind = MOVE;
    OutlinePoint To;
    OutlinePoint Control1;
    OutlinePoint Control2;
};

/// The shape of a text: closed contours, to be filled by the non-zero winding rule, of the same
/// face that measures the text.
struct TextOutline {
    std::vector<OutlineStep> Steps;
    /// The width of the text, and the cell above and below its baseline; design units.
    double Advance = 0;
    double Ascent = 0;
    double Descent = 0;
    /// Logical units a design unit.
    double Scale = 0;
};

/// Takes the outline of `count` bytes of text in the context's font, with the lines under and
/// through the text that the font has. Returns false, and leaves the target as it was, for a wrong
/// handle, a negative count, a null text with a count above 0 or a font that cannot be measured.
[[nodiscard]] MARLIN_API bool GetTextOutline(HDC dc, const char* text, int count,
                                             TextOutline& outline);

}  // namespace PLATFORM
