// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_scale.h>
#include <marlin/platform/fonts/fonts.h>

#include <algorithm>
#include <string_view>
#include <utility>

HFONT CreateFontA(int height, int, int escapement, int, int weight, unsigned long italic,
                  unsigned long underline, unsigned long strikeOut, unsigned long,
                  unsigned long outPrecision, unsigned long, unsigned long, unsigned long,
                  const char* faceName) {
    using namespace PLATFORM;
    FontRecord font;
    font.Height = height;
    font.Escapement = escapement;
    font.Underline = underline != 0;
    font.StrikeOut = strikeOut != 0;
    font.Entry = FontStore::Find(faceName ? faceName : "", weight, italic != 0,
                                 outPrecision == OUT_TT_ONLY_PRECIS);
    return static_cast<HFONT>(Fonts.Add(std::move(font)));
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

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept {
    using namespace PLATFORM;
    const ContextRecord* context = Contexts.Content(dc);
    if (!context || !size || count < 0 || (!text && count > 0)) {
        return 0;
    }
    const SelectedFont font = FontOf(*context);
    if (!font) {
        return 0;
    }
    const FontFace& face = *font.Entry->Face;
    const FontScale scale = ScaleOf(*font.Font, face.Metrics(), context->Map);
    const std::string_view bytes(text, static_cast<std::size_t>(count));
    *size = ExtentOf(face, scale, bytes);
    return 1;
}
