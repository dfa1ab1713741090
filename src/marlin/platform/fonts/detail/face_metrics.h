// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/font_types.h>

struct FT_FaceRec_;

namespace PLATFORM::detail {

/// Reads the tables of an open face as metrics with all lengths in design units, which `FontFace`
/// keeps and `SizedFont` scales. False where they give the face no cell.
[[nodiscard]] bool ReadMetrics(FT_FaceRec_* face, OUTLINETEXTMETRICA& metrics) noexcept;

}  // namespace PLATFORM::detail
