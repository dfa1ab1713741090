// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/face_metrics.h>

#include <algorithm>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

namespace PLATFORM::detail {

namespace {

template <typename Table>
const Table* TableOf(FT_Face face, FT_Sfnt_Tag tag) noexcept {
    return static_cast<const Table*>(FT_Get_Sfnt_Table(face, tag));
}

// FreeType marks a table that the face lacks by this version.
const TT_OS2* Os2Of(FT_Face face) noexcept {
    const auto* os2 = TableOf<TT_OS2>(face, FT_SFNT_OS2);
    return os2 && os2->version != 0xFFFFU ? os2 : nullptr;
}

void ReadStyle(const TT_OS2& os2, FaceMetrics& metrics) noexcept {
    metrics.AverageWidth = os2.xAvgCharWidth;
    metrics.Weight = os2.usWeightClass;
    metrics.Selection = os2.fsSelection;
    metrics.EmbeddingRights = os2.fsType;
    std::copy_n(os2.panose, metrics.Panose.size(), metrics.Panose.begin());
    if (os2.version >= 2) {
        metrics.CapHeight = os2.sCapHeight;
        metrics.XHeight = os2.sxHeight;
    }
}

void ReadScripts(const TT_OS2& os2, FaceMetrics& metrics) noexcept {
    metrics.Subscript[0] = os2.ySubscriptXSize;
    metrics.Subscript[1] = os2.ySubscriptYSize;
    metrics.Subscript[2] = os2.ySubscriptXOffset;
    metrics.Subscript[3] = os2.ySubscriptYOffset;
    metrics.Superscript[0] = os2.ySuperscriptXSize;
    metrics.Superscript[1] = os2.ySuperscriptYSize;
    metrics.Superscript[2] = os2.ySuperscriptXOffset;
    metrics.Superscript[3] = os2.ySuperscriptYOffset;
    metrics.StrikeoutSize = os2.yStrikeoutSize;
    metrics.StrikeoutPosition = os2.yStrikeoutPosition;
}

// Text is laid out by the cell of the OS/2 table's Windows numbers; faces made for other systems
// lack them, and get the cell of their lines.
void ReadCell(const TT_OS2* os2, FaceMetrics& metrics) noexcept {
    const int windowsHeight = os2 ? os2->usWinAscent + os2->usWinDescent : 0;
    const bool windows = windowsHeight > 0;
    metrics.CellAscent = windows ? os2->usWinAscent : metrics.HheaAscender;
    metrics.CellDescent = windows ? os2->usWinDescent : -metrics.HheaDescender;
    metrics.TypoAscender = os2 ? os2->sTypoAscender : metrics.HheaAscender;
    metrics.TypoDescender = os2 ? os2->sTypoDescender : metrics.HheaDescender;
    metrics.TypoLineGap = os2 ? os2->sTypoLineGap : metrics.HheaLineGap;
    const int cell = metrics.CellAscent + metrics.CellDescent;
    const int line = metrics.HheaAscender - metrics.HheaDescender;
    metrics.ExternalLeading = std::max(0, metrics.HheaLineGap - (cell - line));
}

void ReadLines(FT_Face face, FaceMetrics& metrics) noexcept {
    metrics.HheaAscender = face->ascender;
    metrics.HheaDescender = face->descender;
    metrics.SlopeRise = 1;
    if (const auto* hhea = TableOf<TT_HoriHeader>(face, FT_SFNT_HHEA)) {
        metrics.HheaAscender = hhea->Ascender;
        metrics.HheaDescender = hhea->Descender;
        metrics.HheaLineGap = hhea->Line_Gap;
        metrics.SlopeRise = hhea->caret_Slope_Rise;
        metrics.SlopeRun = hhea->caret_Slope_Run;
    }
    if (const auto* post = TableOf<TT_Postscript>(face, FT_SFNT_POST)) {
        // 16.16 fixed point.
        metrics.ItalicAngle = static_cast<int>(post->italicAngle * 10 / 65536);
    }
}

}  // namespace

bool ReadMetrics(FT_FaceRec_* face, FaceMetrics& metrics) noexcept {
    metrics.UnitsPerEm = face->units_per_EM;
    metrics.MaxWidth = face->max_advance_width;
    metrics.UnderlineSize = face->underline_thickness;
    metrics.UnderlinePosition = face->underline_position;
    metrics.FixedPitch = FT_IS_FIXED_WIDTH(face);
    const FT_BBox& box = face->bbox;
    const FT_Pos sides[4] = {box.xMin, box.yMax, box.xMax, box.yMin};
    std::transform(std::begin(sides), std::end(sides), metrics.Box,
                   [](FT_Pos side) { return static_cast<int>(side); });
    ReadLines(face, metrics);
    const TT_OS2* os2 = Os2Of(face);
    if (os2) {
        ReadStyle(*os2, metrics);
        ReadScripts(*os2, metrics);
    }
    ReadCell(os2, metrics);
    return metrics.CellAscent + metrics.CellDescent > 0;
}

}  // namespace PLATFORM::detail
