// SPDX-License-Identifier: MIT
#pragma once

// The records in which programs ask for fonts (`EnumFontFamiliesExA`) and get their measures
// (`CDC::GetOutlineTextMetricsA`, `TextHeightFactComp::GetMetrics`).

#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/rect.h>

/// The bytes of a face name, its ending null character included.
inline constexpr int LF_FACESIZE = 32;

/// A font as it is asked for; `CFont::CreateFontA` explains the fields. The face name ends with a
/// null character, so it has at most 31 others.
struct LOGFONTA {
    int lfHeight = 0;            ///< Of the cell above 0, of the em square below 0; logical units.
    int lfWidth = 0;             ///< No effect.
    int lfEscapement = 0;        ///< Tenths of a degree, counter-clockwise.
    int lfOrientation = 0;       ///< No effect.
    int lfWeight = 0;            ///< 0 to 1000; 400 normal, 700 bold.
    unsigned char lfItalic = 0;  ///< Not 0 for a slanted face.
    unsigned char lfUnderline = 0;       ///< Not 0 for a line under the text.
    unsigned char lfStrikeOut = 0;       ///< Not 0 for a line through the text.
    unsigned char lfCharSet = 0;         ///< No effect.
    unsigned char lfOutPrecision = 0;    ///< No effect; 7 in an enumeration.
    unsigned char lfClipPrecision = 0;   ///< No effect.
    unsigned char lfQuality = 0;         ///< No effect.
    unsigned char lfPitchAndFamily = 0;  ///< In an enumeration 1 for a fixed pitch, else 2.
    char lfFaceName[LF_FACESIZE] = {};   ///< The family, ending with a null character.
};
static_assert(sizeof(LOGFONTA) == 60);

/// The measures of a font's cell, in logical units.
struct TEXTMETRICA {
    int tmHeight = 0;                    ///< Of the cell: ascent and descent.
    int tmAscent = 0;                    ///< Of the cell above the baseline.
    int tmDescent = 0;                   ///< Of the cell below the baseline.
    int tmInternalLeading = 0;           ///< Of the cell above the em square.
    int tmExternalLeading = 0;           ///< Between two lines, beside the cell.
    int tmAveCharWidth = 0;              ///< The mean width of a character.
    int tmMaxCharWidth = 0;              ///< The greatest width of a character.
    int tmWeight = 0;                    ///< 400 normal, 700 bold.
    int tmOverhang = 0;                  ///< 0.
    int tmDigitizedAspectX = 0;          ///< 96, the dots of an inch.
    int tmDigitizedAspectY = 0;          ///< 96.
    unsigned char tmFirstChar = 0;       ///< The first byte with a character: 32.
    unsigned char tmLastChar = 0;        ///< The last one: 255.
    unsigned char tmDefaultChar = 0;     ///< Drawn for those that are missing: 31.
    unsigned char tmBreakChar = 0;       ///< The one that words end with: 32.
    unsigned char tmItalic = 0;          ///< 1 for a slanted face.
    unsigned char tmUnderlined = 0;      ///< 1 with a line under the text.
    unsigned char tmStruckOut = 0;       ///< 1 with a line through the text.
    unsigned char tmPitchAndFamily = 0;  ///< Bits: 1 variable pitch, 2 vector, 4 TrueType.
    unsigned char tmCharSet = 0;         ///< 0.
};
static_assert(sizeof(TEXTMETRICA) == 56);

/// The ten numbers by which the style of a face is classed.
struct PANOSE {
    unsigned char bNumbers[10] = {};  ///< As the table OS/2 has them.
};

/// The measures of an outline font, in logical units unless said otherwise. The last four, the
/// offsets of names, are 0.
struct OUTLINETEXTMETRICA {
    unsigned int otmSize = 0;            ///< Bytes: those of the structure and of the names.
    TEXTMETRICA otmTextMetrics;          ///< Those of the cell.
    unsigned char otmFiller = 0;         ///< 0.
    PANOSE otmPanoseNumber;              ///< The class of the style.
    unsigned int otmfsSelection = 0;     ///< Bits of the table OS/2: 1 slanted, 32 bold.
    unsigned int otmfsType = 0;          ///< The right to embed the face, of the same table.
    int otmsCharSlopeRise = 0;           ///< The slope of the cursor: up,
    int otmsCharSlopeRun = 0;            ///< and across; 0 for an upright face.
    int otmItalicAngle = 0;              ///< Tenths of a degree, counter-clockwise.
    unsigned int otmEMSquare = 0;        ///< The side of the em square in design units.
    int otmAscent = 0;                   ///< The typographic height above the baseline.
    int otmDescent = 0;                  ///< The typographic depth; negative.
    unsigned int otmLineGap = 0;         ///< The typographic gap between lines.
    unsigned int otmsCapEmHeight = 0;    ///< Of capital letters.
    unsigned int otmsXHeight = 0;        ///< Of small letters without ascenders.
    RECT otmrcFontBox;                   ///< The box of all glyphs, y upwards.
    int otmMacAscent = 0;                ///< As other systems lay out lines: above,
    int otmMacDescent = 0;               ///< below (negative),
    unsigned int otmMacLineGap = 0;      ///< and between.
    unsigned int otmusMinimumPPEM = 0;   ///< 0.
    POINT otmptSubscriptSize;            ///< Advised for lowered characters.
    POINT otmptSubscriptOffset;          ///< Advised for them.
    POINT otmptSuperscriptSize;          ///< Advised for raised characters.
    POINT otmptSuperscriptOffset;        ///< Advised for them.
    unsigned int otmsStrikeoutSize = 0;  ///< The thickness of the line through a text.
    int otmsStrikeoutPosition = 0;       ///< Its height above the baseline.
    int otmsUnderscoreSize = 0;          ///< The thickness of the line under a text.
    int otmsUnderscorePosition = 0;      ///< Its middle; negative below the baseline.
    unsigned int otmpFamilyName = 0;     ///< 0, as the next three.
    unsigned int otmpFaceName = 0;       ///< 0.
    unsigned int otmpStyleName = 0;      ///< 0.
    unsigned int otmpFullName = 0;       ///< 0.
};
static_assert(sizeof(OUTLINETEXTMETRICA) == 212);
