// SPDX-License-Identifier: MIT
#pragma once

// The framework's numbers for the arguments and results of the drawing calls.

/// Mapping modes: the unit of logical coordinates, and y up for all but MM_TEXT.
inline constexpr int MM_TEXT = 1;
inline constexpr int MM_LOMETRIC = 2;
inline constexpr int MM_HIMETRIC = 3;
inline constexpr int MM_LOENGLISH = 4;
inline constexpr int MM_HIENGLISH = 5;
inline constexpr int MM_TWIPS = 6;
inline constexpr int MM_ISOTROPIC = 7;
inline constexpr int MM_ANISOTROPIC = 8;

/// Indices for `GetDeviceCaps`.
inline constexpr int TECHNOLOGY = 2;
inline constexpr int HORZSIZE = 4;  // millimetres
inline constexpr int VERTSIZE = 6;
inline constexpr int HORZRES = 8;  // pixels
inline constexpr int VERTRES = 10;
inline constexpr int BITSPIXEL = 12;
inline constexpr int PLANES = 14;
inline constexpr int NUMCOLORS = 24;
inline constexpr int LOGPIXELSX = 88;  // pixels an inch
inline constexpr int LOGPIXELSY = 90;
inline constexpr int DT_RASDISPLAY = 1;

/// Stock objects, for `GetStockObject`.
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int OEM_FIXED_FONT = 10;
inline constexpr int ANSI_FIXED_FONT = 11;
inline constexpr int ANSI_VAR_FONT = 12;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEVICE_DEFAULT_FONT = 14;
inline constexpr int SYSTEM_FIXED_FONT = 16;
inline constexpr int DEFAULT_GUI_FONT = 17;

/// Kinds of objects, for `GetCurrentObject`.
inline constexpr unsigned int OBJ_BRUSH = 2;
inline constexpr unsigned int OBJ_FONT = 6;
inline constexpr unsigned int OBJ_BITMAP = 7;

/// The point of a text that is put on its position: one of the first three combined with one of
/// the others.
inline constexpr unsigned int TA_LEFT = 0;
inline constexpr unsigned int TA_RIGHT = 2;
inline constexpr unsigned int TA_CENTER = 6;
inline constexpr unsigned int TA_TOP = 0;
inline constexpr unsigned int TA_BOTTOM = 8;
inline constexpr unsigned int TA_BASELINE = 24;
inline constexpr unsigned int GDI_ERROR = 0xFFFFFFFF;

/// Background modes: text painted alone, or on its cell in the background color.
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

inline constexpr unsigned long CLR_INVALID = 0xFFFFFFFF;

/// Arguments of font creation.
inline constexpr int FW_DONTCARE = 0;
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;
inline constexpr unsigned int ANSI_CHARSET = 0;
inline constexpr unsigned int DEFAULT_CHARSET = 1;
inline constexpr unsigned int OUT_DEFAULT_PRECIS = 0;
inline constexpr unsigned int OUT_TT_ONLY_PRECIS = 7;
inline constexpr unsigned int CLIP_DEFAULT_PRECIS = 0;
inline constexpr unsigned int CLIP_LH_ANGLES = 16;
inline constexpr unsigned int DEFAULT_QUALITY = 0;
inline constexpr unsigned int PROOF_QUALITY = 2;
inline constexpr unsigned int DEFAULT_PITCH = 0;

/// Kinds of fonts in an enumeration.
inline constexpr unsigned long RASTER_FONTTYPE = 1;
inline constexpr unsigned long TRUETYPE_FONTTYPE = 4;
