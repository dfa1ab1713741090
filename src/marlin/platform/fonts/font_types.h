// SPDX-License-Identifier: MIT
#pragma once

// The records in which programs ask for fonts (`EnumFontFamiliesExA`) and get their measures
// (`CDC::GetOutlineTextMetricsA`, `TextHeightFactComp::GetMetrics`).

#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/rect.h>

inline constexpr int LF_FACESIZE = 32;

/// A font as it is asked for; `CFont::CreateFontA` explains the fields. The face name ends with a
/// null character, so it has at most 31 others.
struct LOGFONTA {
    int lfHeight = 0;
    int lfWidth = 0;
    int lfEscapement = 0;
    int lfOrientation = 0;
    int lfWeight = 0;
    unsigned char lfItalic = 0;
    unsigned char lfUnderline = 0;
    unsigned char lfStrikeOut = 0;
    unsigned char lfCharSet = 0;
    unsigned char lfOutPrecision = 0;
    unsigned char lfClipPrecision = 0;
    unsigned char lfQuality = 0;
    unsigned char lfPitchAndFamily = 0;
    char lfFaceName[LF_FACESIZE] = {};
};
static_assert(sizeof(LOGFONTA) == 60);

/// The measures of a font's cell, in logical units.
struct TEXTMETRICA {
    int tmHeight = 0;
    int tmAscent = 0;
    int tmDescent = 0;
    int tmInternalLeading = 0;
    int tmExternalLeading = 0;
    int tmAveCharWidth = 0;
    int tmMaxCharWidth = 0;
    int tmWeight = 0;
    int tmOverhang = 0;
    int tmDigitizedAspectX = 0;
    int tmDigitizedAspectY = 0;
    unsigned char tmFirstChar = 0;
    unsigned char tmLastChar = 0;
    unsigned char tmDefaultChar = 0;
    unsigned char tmBreakChar = 0;
    unsigned char tmItalic = 0;
    unsigned char tmUnderlined = 0;
    unsigned char tmStruckOut = 0;
    unsigned char tmPitchAndFamily = 0;
    unsigned char tmCharSet = 0;
};
static_assert(sizeof(TEXTMETRICA) == 56);

/// The ten numbers by which the style of a face is classed.
struct PANOSE {
    unsigned char bNumbers[10] = {};
};

/// The measures of an outline font, in logical units unless said otherwise. The last four, the
/// offsets of names, are 0.
struct OUTLINETEXTMETRICA {
    unsigned int otmSize = 0;
    TEXTMETRICA otmTextMetrics;
    unsigned char otmFiller = 0;
    PANOSE otmPanoseNumber;
    unsigned int otmfsSelection = 0;
    unsigned int otmfsType = 0;
    int otmsCharSlopeRise = 0;
    int otmsCharSlopeRun = 0;
    int otmItalicAngle = 0;        // tenths of a degree, counter-clockwise
    unsigned int otmEMSquare = 0;  // design units
    int otmAscent = 0;
    int otmDescent = 0;
    unsigned int otmLineGap = 0;
    unsigned int otmsCapEmHeight = 0;
    unsigned int otmsXHeight = 0;
    RECT otmrcFontBox;
    int otmMacAscent = 0;
    int otmMacDescent = 0;
    unsigned int otmMacLineGap = 0;
    unsigned int otmusMinimumPPEM = 0;
    POINT otmptSubscriptSize;
    POINT otmptSubscriptOffset;
    POINT otmptSuperscriptSize;
    POINT otmptSuperscriptOffset;
    unsigned int otmsStrikeoutSize = 0;
    int otmsStrikeoutPosition = 0;
    int otmsUnderscoreSize = 0;
    int otmsUnderscorePosition = 0;
    unsigned int otmpFamilyName = 0;
    unsigned int otmpFaceName = 0;
    unsigned int otmpStyleName = 0;
    unsigned int otmpFullName = 0;
};
static_assert(sizeof(OUTLINETEXTMETRICA) == 212);
