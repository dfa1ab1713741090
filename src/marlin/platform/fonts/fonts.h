// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/fonts/font_types.h>

// Fonts and their measures. Widths and heights are unhinted design units, scaled once and rounded
// once to whole logical units, without kerning, so they do not depend on the device.
//
// These calls find the font of a handle and ask `detail::FontStore` for faces and
// `detail::SizedFont` for measures. The store asks `FontQuery` (fontconfig) which file has a font,
// and opens its `FontFace` (FreeType).

/// Makes a font of the named face, weight and slant; `PLATFORM::FontCatalog` knows
/// which face is found. A height above 0 is that of the cell, below 0 that of the em square, in
/// logical units; 0 asks for a cell of 12 points. The escapement turns painted texts, in tenths of
/// a degree counter-clockwise. OUT_TT_ONLY_PRECIS prefers outline fonts to a bitmap font of the
/// name. Width, orientation, character set and the rest have no effect.
///
/// There is a font for every face name. Without an outline face that can be read the font cannot
/// be measured; a font made later looks again. Returns null when there are too many objects.
[[nodiscard]] MARLIN_API HFONT CreateFontA(int height, int width, int escapement, int orientation,
                                           int weight, unsigned long italic,
                                           unsigned long underline, unsigned long strikeOut,
                                           unsigned long charSet, unsigned long outPrecision,
                                           unsigned long clipPrecision, unsigned long quality,
                                           unsigned long pitchAndFamily, const char* faceName);
/// The same for a description; null for a null one.
[[nodiscard]] MARLIN_API HFONT CreateFontIndirectA(const LOGFONTA* font);

/// Fills the outline metrics of the context's font into `size` bytes. Returns the size that they
/// need with their names, also for a null buffer. A buffer too small for the names gets the 212
/// bytes of the structure. Returns 0, and fills nothing, for a wrong handle, a buffer below 212
/// bytes or a font that cannot be measured.
MARLIN_API unsigned int GetOutlineTextMetricsA(HDC dc, unsigned int size,
                                               OUTLINETEXTMETRICA* metrics);

/// Measures the width and the cell height of `count` bytes of text in the context's font. Returns
/// 0, and leaves the target as it was, for a wrong handle, a negative count, a null text with a
/// count above 0 or a font that cannot be measured.
MARLIN_API BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept;

/// Called for each font of an enumeration with the caller's argument; returning 0 ends it.
using FONTENUMPROCA = int (*)(const LOGFONTA*, const TEXTMETRICA*, unsigned long, long);
/// Enumerates the outline fonts that have Latin letters: one of each family, sorted by name, when
/// the wanted face name is empty, else the styles of that family. Opens no font file, so the
/// metrics hold weight, slant and pitch alone. Names are in Windows-1252 where it has all of their
/// letters, otherwise in UTF-8; families whose names have over 31 bytes are left out. Returns the
/// result of the last call, 1 without calls, 0 for a wrong handle or null pointers.
MARLIN_API int EnumFontFamiliesExA(HDC dc, LOGFONTA* wanted, FONTENUMPROCA call, long argument,
                                   unsigned long flags);
