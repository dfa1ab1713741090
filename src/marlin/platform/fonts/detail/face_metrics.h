// SPDX-License-Identifier: MIT
#pragma once

#include <array>

struct FT_FaceRec_;

namespace PLATFORM::detail {

/// The numbers of a face that do not depend on its size, read once by `FontFace` and scaled by
/// `SizedFont`; lengths in design units.
struct FaceMetrics {
    int UnitsPerEm = 0;
    /// The cell above and below the baseline, both counted positive; their sum is above 0.
    int CellAscent = 0;
    int CellDescent = 0;
    int ExternalLeading = 0;
    int TypoAscender = 0;
    int TypoDescender = 0;
    int TypoLineGap = 0;
    int HheaAscender = 0;
    int HheaDescender = 0;
    int HheaLineGap = 0;
    int AverageWidth = 0;
    int MaxWidth = 0;
    int Weight = 0;
    int Selection = 0;
    int EmbeddingRights = 0;
    int CapHeight = 0;
    int XHeight = 0;
    int SlopeRise = 0;
    int SlopeRun = 0;
    /// Tenths of a degree, counter-clockwise.
    int ItalicAngle = 0;
    int Box[4] = {};        // left, top, right, bottom
    int Subscript[4] = {};  // width, height, offset x, offset y
    int Superscript[4] = {};
    int StrikeoutSize = 0;
    int StrikeoutPosition = 0;
    int UnderlineSize = 0;
    /// Of the line's middle, negative below the baseline.
    int UnderlinePosition = 0;
    bool FixedPitch = false;
    std::array<unsigned char, 10> Panose{};
};

/// Reads the tables of an open face. False where they give the face no cell.
[[nodiscard]] bool ReadMetrics(FT_FaceRec_* face, FaceMetrics& metrics) noexcept;

}  // namespace PLATFORM::detail
