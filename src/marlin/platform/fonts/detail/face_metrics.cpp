// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/mapping.h>
#include <marlin/platform/fonts/detail/face_metrics.h>

#include <algorithm>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

namespace PLATFORM::detail {

namespace {

constexpr unsigned char FixedPitchBit = 0;
constexpr unsigned char VariablePitchBit = 1;
constexpr unsigned char OutlineBits = 2 | 4;  // vector, TrueType

template <typename Table>
const Table* TableOf(FT_Face face, FT_Sfnt_Tag tag) noexcept {
    return static_cast<const Table*>(FT_Get_Sfnt_Table(face, tag));
}

// FreeType marks a table that the face lacks by this version.
const TT_OS2* Os2Of(FT_Face face) noexcept {
    const auto* os2 = TableOf<TT_OS2>(face, FT_SFNT_OS2);
    return os2 && os2->version != 0xFFFFU ? os2 : nullptr;
}

unsigned int Unsigned(int length) noexcept {
    return static_cast<unsigned int>(length);
}

void ReadStyle(const TT_OS2& os2, OUTLINETEXTMETRICA& metrics) noexcept {
    TEXTMETRICA& tm = metrics.otmTextMetrics;
    tm.tmAveCharWidth = os2.xAvgCharWidth;
    tm.tmWeight = os2.usWeightClass;
    tm.tmItalic = static_cast<unsigned char>(os2.fsSelection & 1U);
    metrics.otmfsSelection = os2.fsSelection;
    metrics.otmfsType = os2.fsType;
    std::ranges::copy(os2.panose, metrics.otmPanoseNumber.bNumbers);
    if (os2.version >= 2) {
        metrics.otmsCapEmHeight = Unsigned(os2.sCapHeight);
        metrics.otmsXHeight = Unsigned(os2.sxHeight);
    }
}

void ReadScripts(const TT_OS2& os2, OUTLINETEXTMETRICA& metrics) noexcept {
    metrics.otmptSubscriptSize = {os2.ySubscriptXSize, os2.ySubscriptYSize};
    metrics.otmptSubscriptOffset = {os2.ySubscriptXOffset, os2.ySubscriptYOffset};
    metrics.otmptSuperscriptSize = {os2.ySuperscriptXSize, os2.ySuperscriptYSize};
    metrics.otmptSuperscriptOffset = {os2.ySuperscriptXOffset, os2.ySuperscriptYOffset};
    metrics.otmsStrikeoutSize = Unsigned(os2.yStrikeoutSize);
    metrics.otmsStrikeoutPosition = os2.yStrikeoutPosition;
}

// Text is laid out by the cell of the OS/2 table's Windows numbers; faces made for other systems
// lack them, and get the cell of their lines.
void ReadCell(const TT_OS2* os2, OUTLINETEXTMETRICA& metrics) noexcept {
    const bool windows = os2 && os2->usWinAscent + os2->usWinDescent > 0;
    TEXTMETRICA& tm = metrics.otmTextMetrics;
    tm.tmAscent = windows ? os2->usWinAscent : metrics.otmMacAscent;
    tm.tmDescent = windows ? os2->usWinDescent : -metrics.otmMacDescent;
    tm.tmHeight = tm.tmAscent + tm.tmDescent;
    metrics.otmAscent = os2 ? os2->sTypoAscender : metrics.otmMacAscent;
    metrics.otmDescent = os2 ? os2->sTypoDescender : metrics.otmMacDescent;
    metrics.otmLineGap = os2 ? Unsigned(os2->sTypoLineGap) : metrics.otmMacLineGap;
    const int line = metrics.otmMacAscent - metrics.otmMacDescent;
    const int gap = static_cast<int>(metrics.otmMacLineGap);
    tm.tmExternalLeading = std::max(0, gap - (tm.tmHeight - line));
}

void ReadLines(FT_Face face, OUTLINETEXTMETRICA& metrics) noexcept {
    metrics.otmMacAscent = face->ascender;
    metrics.otmMacDescent = face->descender;
    metrics.otmsCharSlopeRise = 1;
    if (const auto* hhea = TableOf<TT_HoriHeader>(face, FT_SFNT_HHEA)) {
        metrics.otmMacAscent = hhea->Ascender;
        metrics.otmMacDescent = hhea->Descender;
        metrics.otmMacLineGap = Unsigned(hhea->Line_Gap);
        metrics.otmsCharSlopeRise = hhea->caret_Slope_Rise;
        metrics.otmsCharSlopeRun = hhea->caret_Slope_Run;
    }
    if (const auto* post = TableOf<TT_Postscript>(face, FT_SFNT_POST)) {
        // 16.16 fixed point.
        metrics.otmItalicAngle = static_cast<int>(post->italicAngle * 10 / 65536);
    }
}

void ReadFace(FT_Face face, OUTLINETEXTMETRICA& metrics) noexcept {
    metrics.otmSize = sizeof metrics;
    metrics.otmEMSquare = face->units_per_EM;
    metrics.otmsUnderscoreSize = face->underline_thickness;
    metrics.otmsUnderscorePosition = face->underline_position;
    metrics.otmrcFontBox = {static_cast<int>(face->bbox.xMin), static_cast<int>(face->bbox.yMax),
                            static_cast<int>(face->bbox.xMax), static_cast<int>(face->bbox.yMin)};
    TEXTMETRICA& tm = metrics.otmTextMetrics;
    tm.tmMaxCharWidth = face->max_advance_width;
    tm.tmDigitizedAspectX = DotsPerInch;
    tm.tmDigitizedAspectY = DotsPerInch;
    // Every byte of the code page can be measured, whatever the face has glyphs for.
    tm.tmFirstChar = 32;
    tm.tmLastChar = 255;
    tm.tmDefaultChar = 31;
    tm.tmBreakChar = 32;
    tm.tmPitchAndFamily = static_cast<unsigned char>(
        (FT_IS_FIXED_WIDTH(face) ? FixedPitchBit : VariablePitchBit) | OutlineBits);
}

}  // namespace

bool ReadMetrics(FT_FaceRec_* face, OUTLINETEXTMETRICA& metrics) noexcept {
    ReadFace(face, metrics);
    ReadLines(face, metrics);
    const TT_OS2* os2 = Os2Of(face);
    if (os2) {
        ReadStyle(*os2, metrics);
        ReadScripts(*os2, metrics);
    }
    ReadCell(os2, metrics);
    return metrics.otmTextMetrics.tmHeight > 0;
}

}  // namespace PLATFORM::detail
