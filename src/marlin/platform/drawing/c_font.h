// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>
#include <marlin/platform/fonts/font_types.h>

/// A font; `::CreateFontA` says what is asked of one.
class MARLIN_API CFont : public CGdiObject {
public:
    CFont() noexcept = default;

    /// Null for a handle that names no font.
    [[nodiscard]] static CFont* FromHandle(HFONT handle) noexcept;
    [[nodiscard]] operator HFONT() const noexcept;

    bool CreateFontA(int height, int width, int escapement, int orientation, int weight,
                     unsigned char italic, unsigned char underline, unsigned char strikeOut,
                     unsigned char charSet, unsigned char outPrecision, unsigned char clipPrecision,
                     unsigned char quality, unsigned char pitchAndFamily, const char* faceName);
    bool CreateFontIndirectA(const LOGFONTA* font);
};
