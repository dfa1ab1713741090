// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/detail/font_store.h>

bool CFont::CreateFontA(int height, int, int, int, int weight, unsigned char italic,
                        unsigned char underline, unsigned char strikeOut, unsigned char,
                        unsigned char, unsigned char, unsigned char, unsigned char,
                        const char* faceName) {
    using namespace PLATFORM::detail;
    const FontFace* const face = FontStore::Find({faceName ? faceName : "", weight, italic != 0});
    return Own(Objects().Add(FontRecord{height, face, underline != 0, strikeOut != 0}));
}
