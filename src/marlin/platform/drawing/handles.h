// SPDX-License-Identifier: MIT
#pragma once

// Handles name objects of the drawing platform. Their values mean nothing to a caller; every
// call checks the ones it is given, so a null, stale or invented handle gives the call's failure
// result. An object serves one thread at a time.

using BOOL = int;
/// Red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
using COLORREF = unsigned long;

using HDC = struct HDC__*;
using HGDIOBJ = void*;
using HFONT = struct HFONT__*;
using HBRUSH = struct HBRUSH__*;
using HBITMAP = struct HBITMAP__*;
