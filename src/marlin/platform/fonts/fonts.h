// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/fonts/font_types.h>

// Measures and names of fonts. Widths and heights are unhinted design units, scaled once and
// rounded once to whole logical units, without kerning, so they do not depend on the device.
//
// These calls, `CFont` and `CDC` find the font of a handle and ask `detail::FontStore` for faces
// and `detail::SizedFont` for measures. The store asks `FontQuery` (fontconfig) which file has a
// font, and opens its `FontFace` (FreeType).

/// Measures the width and the cell height of `count` bytes of text in the context's font. Returns
/// 0, and leaves the target as it was, for a wrong handle, a negative count, a null text with a
/// count above 0 or a font that cannot be measured.
MARLIN_API BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept;

/// Called for each font of an enumeration with the caller's argument; returning 0 ends it.
using FONTENUMPROCA = int (*)(const LOGFONTA*, const TEXTMETRICA*, unsigned long, long);
/// Enumerates the outline fonts that have Latin letters, one of each family, sorted by name,
/// whatever is wanted. Opens no font file, so the metrics hold weight, slant and pitch alone. Names
/// are in Windows-1252 where it has all of their letters, otherwise in UTF-8; families whose names
/// have over 31 bytes are left out. Returns the result of the last call, 1 without calls, 0 for a
/// wrong handle or without a callback.
MARLIN_API int EnumFontFamiliesExA(HDC dc, const LOGFONTA* wanted, FONTENUMPROCA call,
                                   long argument, unsigned long flags);
