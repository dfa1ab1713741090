// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/fonts/font_types.h>

// Fonts and their measures. Widths and heights come from unhinted design units, scaled once and
// rounded once to whole logical units, without kerning: they do not depend on the device.

/// Asks for a font of the face (Windows-1252), by weight and slant; what else there is of it is
/// told by PLATFORM::FontCatalog. A height above 0 is that of the cell, below 0 that of the em
/// square, 0 asks for a cell of 12 points, in logical units. The escapement turns painted texts,
/// in tenths of a degree counter-clockwise. OUT_TT_ONLY_PRECIS takes outline fonts even where the
/// name is that of a bitmap font. Width, orientation, character set and the rest do not count.
///
/// A font is made for every face name. One for which no outline face is found, or none that can
/// be read, cannot be measured; a font made later looks again.
/// Null when there are too many objects.
[[nodiscard]] MARLIN_API HFONT CreateFontA(int height, int width, int escapement, int orientation,
                                           int weight, unsigned long italic,
                                           unsigned long underline, unsigned long strikeOut,
                                           unsigned long charSet, unsigned long outPrecision,
                                           unsigned long clipPrecision, unsigned long quality,
                                           unsigned long pitchAndFamily, const char* faceName);
/// Null for null.
[[nodiscard]] MARLIN_API HFONT CreateFontIndirectA(const LOGFONTA* font);

/// Fills the outline metrics of the context's font into `size` bytes. Returns the bytes that
/// they take with their names, which is what a null buffer asks for. A buffer too small for the
/// names gets the 212 bytes alone, one below 212 nothing. 0, and nothing filled, for a wrong
/// handle, a buffer below 212 bytes or a font that cannot be measured.
MARLIN_API unsigned int GetOutlineTextMetricsA(HDC dc, unsigned int size,
                                               OUTLINETEXTMETRICA* metrics);

/// The width and the cell height of `count` bytes of text in the context's font. 0, and the
/// target unchanged, for a wrong handle, a negative count, a null text with a count above 0 or
/// a font that cannot be measured.
MARLIN_API BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept;

/// Called for each font of an enumeration with the caller's last argument; 0 ends it.
using FONTENUMPROCA = int (*)(const LOGFONTA*, const TEXTMETRICA*, unsigned long, long);
/// Enumerates the outline fonts that hold Latin letters: one of each family by name when the
/// wanted face name is empty, else the styles of that family. No font file is opened, so the
/// metrics tell weight, slant and pitch alone. Families with names over 31 bytes, or outside
/// Windows-1252, cannot be told. Returns what the last call returned, 1 without calls, 0 for a
/// wrong handle or null pointers.
MARLIN_API int EnumFontFamiliesExA(HDC dc, LOGFONTA* wanted, FONTENUMPROCA call, long argument,
                                   unsigned long flags);
