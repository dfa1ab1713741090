// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>

/// A font, deleted with its wrapper. Made empty.
/// @code
/// CFont font;  // before the context, which then ends first
/// CDC dc;
/// dc.CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
/// font.CreateFontA(-100, 0, 0, 0, FW_BOLD, 0, 0, 0, ANSI_CHARSET, OUT_TT_ONLY_PRECIS,
///                  CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH, "Arial");
/// dc.SelectObject(&font);
/// SIZE extent;
/// GetTextExtentPoint32A(dc, "Wreck 1954", 10, &extent);
/// assert(extent.cx > 0);  // logical units
/// @endcode
class MARLIN_API CFont : public CGdiObject {
public:
    /// Makes a font of the named face, weight and slant, an outline font rather than a bitmap font
    /// of that name; `PLATFORM::FontCatalog` knows which face is found. A height above 0 is that
    /// of the cell, below 0 that of the em square, in logical units; 0 asks for a cell of 12
    /// points. Width, escapement, orientation, character set and the rest have no effect.
    ///
    /// There is a font for every face name. Without an outline face that can be read the font
    /// cannot be measured; a font made later looks again. False when there are too many objects.
    bool CreateFontA(int height, int width, int escapement, int orientation, int weight,
                     unsigned char italic, unsigned char underline, unsigned char strikeOut,
                     unsigned char charSet, unsigned char outPrecision, unsigned char clipPrecision,
                     unsigned char quality, unsigned char pitchAndFamily, const char* faceName);
};
