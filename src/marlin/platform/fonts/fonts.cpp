// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/fonts/fonts.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace PLATFORM;
using namespace PLATFORM::detail;

bool IsText(const char* text, int count) noexcept {
    return count >= 0 && (text || count == 0);
}

// Writes the names after the metrics, and their offsets into the metrics.
void AppendNames(const FontFace& face, OUTLINETEXTMETRICA& otm, char* end) {
    unsigned int* const offsets[] = {&otm.otmpFamilyName, &otm.otmpFaceName, &otm.otmpStyleName,
                                     &otm.otmpFullName};
    unsigned int offset = sizeof otm;
    for (std::size_t i = 0; i < std::size(offsets); ++i) {
        const std::string& name = face.Names()[i];
        *offsets[i] = offset;
        end = std::copy_n(name.c_str(), name.size() + 1, end);
        offset += static_cast<unsigned int>(name.size() + 1);
    }
}

// False for a name that a LOGFONTA cannot carry.
bool Describe(const InstalledFont& font, LOGFONTA& logical, TEXTMETRICA& metrics) {
    const std::string windows = FromUtf8(font.Family);
    const std::string& face = ToUtf8(windows) == font.Family ? windows : font.Family;
    if (face.empty() || face.size() >= LF_FACESIZE) {
        return false;
    }
    logical.lfWeight = metrics.tmWeight = font.Weight;
    logical.lfItalic = metrics.tmItalic = font.Italic;
    logical.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    // The same bit means a fixed pitch in one and a variable one in the other.
    logical.lfPitchAndFamily = font.FixedPitch ? 1 : 2;
    metrics.tmPitchAndFamily = font.FixedPitch ? 6 : 7;
    face.copy(logical.lfFaceName, face.size());
    return true;
}

}  // namespace

HFONT CreateFontA(int height, int, int escapement, int, int weight, unsigned long italic,
                  unsigned long underline, unsigned long strikeOut, unsigned long,
                  unsigned long outPrecision, unsigned long, unsigned long, unsigned long,
                  const char* faceName) {
    FontRecord font;
    font.Height = height;
    font.Escapement = escapement;
    font.Underline = underline != 0;
    font.StrikeOut = strikeOut != 0;
    font.Face = FontStore::Find(
        {faceName ? faceName : "", weight, italic != 0, outPrecision == OUT_TT_ONLY_PRECIS});
    return static_cast<HFONT>(Fonts().Add(std::move(font)));
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
    if (!font) {
        return nullptr;
    }
    // The name of a full array has no end.
    char face[LF_FACESIZE + 1] = {};
    std::copy_n(font->lfFaceName, LF_FACESIZE, face);
    return CreateFontA(font->lfHeight, font->lfWidth, font->lfEscapement, font->lfOrientation,
                       font->lfWeight, font->lfItalic, font->lfUnderline, font->lfStrikeOut,
                       font->lfCharSet, font->lfOutPrecision, font->lfClipPrecision,
                       font->lfQuality, font->lfPitchAndFamily, face);
}

unsigned int GetOutlineTextMetricsA(HDC dc, unsigned int size, OUTLINETEXTMETRICA* metrics) {
    const SelectedFont font = FontOf(dc);
    if (!font || (metrics && size < sizeof(OUTLINETEXTMETRICA))) {
        return 0;
    }
    OUTLINETEXTMETRICA otm = font.Sized.Metrics();
    if (!metrics) {
        return otm.otmSize;
    }
    otm.otmTextMetrics.tmUnderlined = font.Record->Underline;
    otm.otmTextMetrics.tmStruckOut = font.Record->StrikeOut;
    if (size >= otm.otmSize) {
        AppendNames(font.Sized.Face(), otm, reinterpret_cast<char*>(metrics) + sizeof otm);
    }
    *metrics = otm;
    return otm.otmSize;
}

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept {
    const SelectedFont font = size && IsText(text, count) ? FontOf(dc) : SelectedFont();
    if (!font) {
        return 0;
    }
    *size = font.Sized.Extent({text, static_cast<std::size_t>(count)});
    return 1;
}

int EnumFontFamiliesExA(HDC dc, LOGFONTA* wanted, FONTENUMPROCA call, long argument,
                        unsigned long) {
    if (!Contexts().Find(dc) || !wanted || !call) {
        return 0;
    }
    const std::string_view name(wanted->lfFaceName, ::strnlen(wanted->lfFaceName, LF_FACESIZE));
    int result = 1;
    for (const InstalledFont& font :
         name.empty() ? FontStore::Families() : FontStore::Styles(ToUtf8(name))) {
        LOGFONTA logical;
        TEXTMETRICA metrics;
        if (result != 0 && Describe(font, logical, metrics)) {
            result = call(&logical, &metrics, TRUETYPE_FONTTYPE, argument);
        }
    }
    return result;
}
