// SPDX-License-Identifier: MIT
#pragma once

// The framework's numbers for the arguments and results of the drawing calls.

// Mapping modes: what logical coordinates are.
inline constexpr int MM_TEXT = 1;       ///< pixels, y down
inline constexpr int MM_HIMETRIC = 3;   ///< hundredths of a millimetre, y up
inline constexpr int MM_ISOTROPIC = 7;  ///< square units of any size

// Indices for `CDC::GetDeviceCaps`.
inline constexpr int HORZSIZE = 4;  ///< the display's width in millimetres
inline constexpr int VERTSIZE = 6;  ///< the display's height in millimetres
inline constexpr int HORZRES = 8;   ///< the display's width in pixels
inline constexpr int VERTRES = 10;  ///< the display's height in pixels

// Stock objects, for `GetStockObject`.
inline constexpr int WHITE_BRUSH = 0;        ///< what a new context has
inline constexpr int LTGRAY_BRUSH = 1;       ///< each component 192
inline constexpr int GRAY_BRUSH = 2;         ///< each component 128
inline constexpr int DKGRAY_BRUSH = 3;       ///< each component 64
inline constexpr int BLACK_BRUSH = 4;        ///< each component 0
inline constexpr int NULL_BRUSH = 5;         ///< here as the black one
inline constexpr int SYSTEM_FONT = 13;       ///< cells of 16 units; what a new context has
inline constexpr int DEFAULT_GUI_FONT = 17;  ///< an em of 11 units

// The point of a text that is put on its position: one of the first three combined with one of
// the others.
inline constexpr unsigned int TA_LEFT = 0;             ///< at the left end
inline constexpr unsigned int TA_RIGHT = 2;            ///< at the right end
inline constexpr unsigned int TA_CENTER = 6;           ///< in the middle between the ends
inline constexpr unsigned int TA_TOP = 0;              ///< at the top of the cell
inline constexpr unsigned int TA_BOTTOM = 8;           ///< at the bottom of the cell
inline constexpr unsigned int TA_BASELINE = 24;        ///< where the letters stand
inline constexpr unsigned int GDI_ERROR = 0xFFFFFFFF;  ///< no alignment: the call failed

/// No color: the call failed, or there is no such pixel.
inline constexpr unsigned long CLR_INVALID = 0xFFFFFFFF;

// Arguments of font creation.
inline constexpr int FW_NORMAL = 400;                  ///< the weight of plain letters
inline constexpr int FW_BOLD = 700;                    ///< the weight of bold letters
inline constexpr unsigned int ANSI_CHARSET = 0;        ///< the letters of Windows-1252
inline constexpr unsigned int OUT_TT_ONLY_PRECIS = 7;  ///< outline fonts alone
inline constexpr unsigned int CLIP_LH_ANGLES = 16;     ///< angles turn with the axes
inline constexpr unsigned int PROOF_QUALITY = 2;       ///< letters as they were designed
inline constexpr unsigned int DEFAULT_PITCH = 0;       ///< letters of any width

/// The kind of the fonts in an enumeration.
inline constexpr unsigned long TRUETYPE_FONTTYPE = 4;
