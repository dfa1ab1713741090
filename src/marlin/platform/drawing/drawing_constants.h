// SPDX-License-Identifier: MIT
#pragma once

// The framework's numbers for the arguments and results of the drawing calls.

/// Mapping modes: logical coordinates are pixels, y down; hundredths of a millimetre, y up; or
/// square units of any size.
inline constexpr int MM_TEXT = 1;
inline constexpr int MM_HIMETRIC = 3;
inline constexpr int MM_ISOTROPIC = 7;

/// Indices for `CDC::GetDeviceCaps`.
inline constexpr int HORZSIZE = 4;  // millimetres
inline constexpr int VERTSIZE = 6;
inline constexpr int HORZRES = 8;  // pixels
inline constexpr int VERTRES = 10;

/// Stock objects, for `GetStockObject`.
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEFAULT_GUI_FONT = 17;

/// The point of a text that is put on its position: one of the first three combined with one of
/// the others.
inline constexpr unsigned int TA_LEFT = 0;
inline constexpr unsigned int TA_RIGHT = 2;
inline constexpr unsigned int TA_CENTER = 6;
inline constexpr unsigned int TA_TOP = 0;
inline constexpr unsigned int TA_BOTTOM = 8;
inline constexpr unsigned int TA_BASELINE = 24;
inline constexpr unsigned int GDI_ERROR = 0xFFFFFFFF;

inline constexpr unsigned long CLR_INVALID = 0xFFFFFFFF;

/// Arguments of font creation.
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;
inline constexpr unsigned int ANSI_CHARSET = 0;
inline constexpr unsigned int OUT_TT_ONLY_PRECIS = 7;
inline constexpr unsigned int CLIP_LH_ANGLES = 16;
inline constexpr unsigned int PROOF_QUALITY = 2;
inline constexpr unsigned int DEFAULT_PITCH = 0;

/// The kind of the fonts in an enumeration.
inline constexpr unsigned long TRUETYPE_FONTTYPE = 4;
