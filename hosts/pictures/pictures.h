// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The pictures, each a whole SVG document.
namespace PICTURES {

/// A text at the twelve justifications and four rotations, over its rectangles.
[[nodiscard]] std::string DrawJustifications();
/// Wrapped texts with the boxes of their lines.
[[nodiscard]] std::string DrawWrappedText();
/// A depth label in all presentations and placements.
[[nodiscard]] std::string DrawDepthLabels();

}  // namespace PICTURES
