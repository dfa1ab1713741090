// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_scale.h>
#include <marlin/platform/fonts/fonts.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace PLATFORM;

constexpr unsigned char FixedPitchBit = 0;
constexpr unsigned char VariablePitchBit = 1;
constexpr unsigned char OutlineBits = 2 | 4;  // vector, TrueType

TEXTMETRICA TextMetrics(const FontRecord& font, const FaceMetrics& face, const FontScale& scale) {
    TEXTMETRICA tm;
    tm.tmHeight = scale.Cell;
    tm.tmAscent = scale.Round(face.CellAscent);
    tm.tmDescent = scale.Cell - tm.tmAscent;
    tm.tmInternalLeading = scale.Cell - scale.Round(face.UnitsPerEm);
    tm.tmExternalLeading = scale.Round(face.ExternalLeading);
    tm.tmAveCharWidth = scale.Round(face.AverageWidth);
    tm.tmMaxCharWidth = scale.Round(face.MaxWidth);
    tm.tmWeight = face.Weight;
    tm.tmDigitizedAspectX = DotsPerInch;
    tm.tmDigitizedAspectY = DotsPerInch;
    tm.tmFirstChar = 32;
    tm.tmLastChar = 255;
    tm.tmDefaultChar = 31;
    tm.tmBreakChar = 32;
    tm.tmItalic = static_cast<unsigned char>(face.Selection & 1);
    tm.tmUnderlined = font.Underline;
    tm.tmStruckOut = font.StrikeOut;
    tm.tmPitchAndFamily = static_cast<unsigned char>(
        (face.FixedPitch ? FixedPitchBit : VariablePitchBit) | OutlineBits);
    return tm;
}

void SetStyle(OUTLINETEXTMETRICA& otm, const FaceMetrics& face) {
    std::ranges::copy(face.Panose, otm.otmPanoseNumber.bNumbers);
    otm.otmfsSelection = static_cast<unsigned int>(face.Selection);
    otm.otmfsType = static_cast<unsigned int>(face.EmbeddingRights);
    otm.otmsCharSlopeRise = face.SlopeRise;
    otm.otmsCharSlopeRun = face.SlopeRun;
    otm.otmItalicAngle = face.ItalicAngle;
    otm.otmEMSquare = static_cast<unsigned int>(face.UnitsPerEm);
    otm.otmusMinimumPPEM = static_cast<unsigned int>(face.SmallestPixels);
}

void SetLines(OUTLINETEXTMETRICA& otm, const FaceMetrics& face, const FontScale& scale) {
    const auto size = [&](int units) { return static_cast<unsigned int>(scale.Round(units)); };
    otm.otmAscent = scale.Round(face.TypoAscender);
    otm.otmDescent = scale.Round(face.TypoDescender);
    otm.otmLineGap = size(face.TypoLineGap);
    otm.otmMacAscent = scale.Round(face.HheaAscender);
    otm.otmMacDescent = scale.Round(face.HheaDescender);
    otm.otmMacLineGap = size(face.HheaLineGap);
    otm.otmsCapEmHeight = size(face.CapHeight);
    otm.otmsXHeight = size(face.XHeight);
    otm.otmrcFontBox = {scale.Round(face.Box[0]), scale.Round(face.Box[1]),
                        scale.Round(face.Box[2]), scale.Round(face.Box[3])};
}

void SetMarks(OUTLINETEXTMETRICA& otm, const FaceMetrics& face, const FontScale& scale) {
    const auto point = [&](const int* units) {
        return POINT{scale.Round(units[0]), scale.Round(units[1])};
    };
    otm.otmptSubscriptSize = point(face.Subscript);
    otm.otmptSubscriptOffset = point(face.Subscript + 2);
    otm.otmptSuperscriptSize = point(face.Superscript);
    otm.otmptSuperscriptOffset = point(face.Superscript + 2);
    otm.otmsStrikeoutSize = static_cast<unsigned int>(scale.Round(face.StrikeoutSize));
    otm.otmsStrikeoutPosition = scale.Round(face.StrikeoutPosition);
    otm.otmsUnderscoreSize = scale.Round(face.UnderlineSize);
    otm.otmsUnderscorePosition = scale.Round(face.UnderlinePosition);
}

// Family, face, style and full name, each with its null character.
std::string JoinNames(const FontFace& face, std::array<unsigned int, 4>& offsets) {
    const std::string full =
        face.Style().empty() ? face.Family() : face.Family() + ' ' + face.Style();
    std::string joined;
    std::size_t i = 0;
    for (const std::string* name : {&face.Family(), &face.Family(), &face.Style(), &full}) {
        offsets[i++] = static_cast<unsigned int>(sizeof(OUTLINETEXTMETRICA) + joined.size());
        joined += *name;
        joined += '\0';
    }
    return joined;
}

}  // namespace

unsigned int GetOutlineTextMetricsA(HDC dc, unsigned int size, OUTLINETEXTMETRICA* metrics) {
    const ContextRecord* context = Contexts.Content(dc);
    const SelectedFont font = context ? FontOf(*context) : SelectedFont();
    if (!font || (metrics && size < sizeof(OUTLINETEXTMETRICA))) {
        return 0;
    }
    const FaceMetrics& face = font.Entry->Face->Metrics();
    const FontScale scale = ScaleOf(*font.Font, face, context->Map);
    std::array<unsigned int, 4> offsets{};
    const std::string names = JoinNames(*font.Entry->Face, offsets);
    OUTLINETEXTMETRICA otm;
    otm.otmSize = static_cast<unsigned int>(sizeof otm + names.size());
    if (!metrics) {
        return otm.otmSize;
    }
    otm.otmTextMetrics = TextMetrics(*font.Font, face, scale);
    SetStyle(otm, face);
    SetLines(otm, face, scale);
    SetMarks(otm, face, scale);
    if (size >= otm.otmSize) {
        otm.otmpFamilyName = offsets[0];
        otm.otmpFaceName = offsets[1];
        otm.otmpStyleName = offsets[2];
        otm.otmpFullName = offsets[3];
        std::memcpy(reinterpret_cast<char*>(metrics) + sizeof otm, names.data(), names.size());
    }
    *metrics = otm;
    return otm.otmSize;
}
