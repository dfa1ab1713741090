// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>
#include <marlin/platform/fonts/font_types.h>

/// A font, deleted with its wrapper; `::CreateFontA` explains how it is asked for. Made empty.
/// @code
/// CFont font;  // before the context, which then ends first
/// CDC dc;
/// dc.CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
/// font.CreateFontA(-100, 0, 0, 0, FW_BOLD, 0, 0, 0, ANSI_CHARSET, OUT_TT_ONLY_PRECIS,
///                  CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Arial");
/// dc.SelectObject(&font);
/// const int width = dc.GetTextExtent("Wreck 1954").cx;  // logical units
/// assert(width > 0);
/// @endcode
class MARLIN_API CFont : public CGdiObject {
public:
    CFont() noexcept = default;

    /// Null when the handle is not that of a font.
    [[nodiscard]] static CFont* FromHandle(HFONT handle) noexcept;
    [[nodiscard]] operator HFONT() const noexcept;

    bool CreateFontA(int height, int width, int escapement, int orientation, int weight,
                     unsigned char italic, unsigned char underline, unsigned char strikeOut,
                     unsigned char charSet, unsigned char outPrecision, unsigned char clipPrecision,
                     unsigned char quality, unsigned char pitchAndFamily, const char* faceName);
    bool CreateFontIndirectA(const LOGFONTA* font);
};
