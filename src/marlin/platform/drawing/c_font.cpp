// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/fonts/fonts.h>

CFont* CFont::FromHandle(HFONT handle) noexcept {
    return dynamic_cast<CFont*>(CGdiObject::FromHandle(handle));
}

CFont::operator HFONT() const noexcept {
    return static_cast<HFONT>(m_hObject);
}

bool CFont::CreateFontA(int height, int width, int escapement, int orientation, int weight,
                        unsigned char italic, unsigned char underline, unsigned char strikeOut,
                        unsigned char charSet, unsigned char outPrecision,
                        unsigned char clipPrecision, unsigned char quality,
                        unsigned char pitchAndFamily, const char* faceName) {
    return Attach(::CreateFontA(height, width, escapement, orientation, weight, italic, underline,
                                strikeOut, charSet, outPrecision, clipPrecision, quality,
                                pitchAndFamily, faceName));
}

bool CFont::CreateFontIndirectA(const LOGFONTA* font) {
    return Attach(::CreateFontIndirectA(font));
}
