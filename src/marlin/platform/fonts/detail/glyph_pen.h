// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/detail/font_face.h>
#include <marlin/platform/fonts/text_outline.h>

#include <string_view>
#include <vector>

namespace PLATFORM {

/// Appends the outlines of a text in design units, glyph after glyph along the baseline, each
/// contour closed. Glyphs that cannot be read leave their place empty. The caller holds the lock
/// of the fonts. Returns the advance of the whole text.
double AppendText(const FontFace& face, std::string_view text, std::vector<OutlineStep>& steps);

/// Appends a box of the given middle and thickness under or through a text.
void AppendLine(double length, double middle, double thickness, std::vector<OutlineStep>& steps);

}  // namespace PLATFORM
