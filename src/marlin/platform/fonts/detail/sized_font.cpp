// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/mapping.h>
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/fonts/detail/sized_font.h>

#include <algorithm>
#include <cmath>

namespace PLATFORM::detail {

namespace {

constexpr unsigned char FixedPitchBit = 0;
constexpr unsigned char VariablePitchBit = 1;
constexpr unsigned char OutlineBits = 2 | 4;  // vector, TrueType

void SetStyle(OUTLINETEXTMETRICA& otm, const FaceMetrics& face) noexcept {
    std::ranges::copy(face.Panose, otm.otmPanoseNumber.bNumbers);
    otm.otmfsSelection = static_cast<unsigned int>(face.Selection);
    otm.otmfsType = static_cast<unsigned int>(face.EmbeddingRights);
    otm.otmsCharSlopeRise = face.SlopeRise;
    otm.otmsCharSlopeRun = face.SlopeRun;
    otm.otmItalicAngle = face.ItalicAngle;
    otm.otmEMSquare = static_cast<unsigned int>(face.UnitsPerEm);
}

}  // namespace

SizedFont::SizedFont(const FontFace* face, int height, int defaultCell) noexcept : m_Face(face) {
    if (!face) {
        return;
    }
    const FaceMetrics& metrics = face->Metrics();
    const int cellUnits = metrics.CellAscent + metrics.CellDescent;
    if (height < 0) {
        m_Logical = std::fabs(static_cast<double>(height));  // the lowest int has no opposite
        m_Design = metrics.UnitsPerEm;
        m_Cell = Round(cellUnits);
        return;
    }
    m_Cell = height > 0 ? height : defaultCell;
    m_Logical = m_Cell;
    m_Design = cellUnits;
}

// Multiplied before divided: the other order would round twice.
int SizedFont::Round(double designUnits) const noexcept {
    return RoundToInt(designUnits * m_Logical / m_Design);
}

TEXTMETRICA SizedFont::CellMetrics() const noexcept {
    const FaceMetrics& face = m_Face->Metrics();
    TEXTMETRICA tm;
    tm.tmHeight = m_Cell;
    tm.tmAscent = Round(face.CellAscent);
    // The rest of the cell, so that the two always add up to it.
    tm.tmDescent = m_Cell - tm.tmAscent;
    tm.tmInternalLeading = m_Cell - Round(face.UnitsPerEm);
    tm.tmExternalLeading = Round(face.ExternalLeading);
    tm.tmAveCharWidth = Round(face.AverageWidth);
    tm.tmMaxCharWidth = Round(face.MaxWidth);
    tm.tmWeight = face.Weight;
    tm.tmDigitizedAspectX = DotsPerInch;
    tm.tmDigitizedAspectY = DotsPerInch;
    // Every byte of the code page can be measured, whatever the face has glyphs for.
    tm.tmFirstChar = 32;
    tm.tmLastChar = 255;
    tm.tmDefaultChar = 31;
    tm.tmBreakChar = 32;
    tm.tmItalic = static_cast<unsigned char>(face.Selection & 1);
    tm.tmPitchAndFamily = static_cast<unsigned char>(
        (face.FixedPitch ? FixedPitchBit : VariablePitchBit) | OutlineBits);
    return tm;
}

void SizedFont::SetLines(OUTLINETEXTMETRICA& otm) const noexcept {
    const FaceMetrics& face = m_Face->Metrics();
    const auto size = [&](int units) { return static_cast<unsigned int>(Round(units)); };
    otm.otmAscent = Round(face.TypoAscender);
    otm.otmDescent = Round(face.TypoDescender);
    otm.otmLineGap = size(face.TypoLineGap);
    otm.otmMacAscent = Round(face.HheaAscender);
    otm.otmMacDescent = Round(face.HheaDescender);
    otm.otmMacLineGap = size(face.HheaLineGap);
    otm.otmsCapEmHeight = size(face.CapHeight);
    otm.otmsXHeight = size(face.XHeight);
    otm.otmrcFontBox = {Round(face.Box[0]), Round(face.Box[1]), Round(face.Box[2]),
                        Round(face.Box[3])};
}

void SizedFont::SetMarks(OUTLINETEXTMETRICA& otm) const noexcept {
    const FaceMetrics& face = m_Face->Metrics();
    const auto point = [&](const int* units) { return POINT{Round(units[0]), Round(units[1])}; };
    otm.otmptSubscriptSize = point(face.Subscript);
    otm.otmptSubscriptOffset = point(face.Subscript + 2);
    otm.otmptSuperscriptSize = point(face.Superscript);
    otm.otmptSuperscriptOffset = point(face.Superscript + 2);
    otm.otmsStrikeoutSize = static_cast<unsigned int>(Round(face.StrikeoutSize));
    otm.otmsStrikeoutPosition = Round(face.StrikeoutPosition);
    otm.otmsUnderscoreSize = Round(face.UnderlineSize);
    otm.otmsUnderscorePosition = Round(face.UnderlinePosition);
}

OUTLINETEXTMETRICA SizedFont::Metrics() const noexcept {
    OUTLINETEXTMETRICA otm;
    otm.otmSize = sizeof otm;
    otm.otmTextMetrics = CellMetrics();
    SetStyle(otm, m_Face->Metrics());
    SetLines(otm);
    SetMarks(otm);
    return otm;
}

}  // namespace PLATFORM::detail
