// SPDX-License-Identifier: MIT
#pragma once

// Handles name drawing objects. Their values have no meaning to a caller. Every call checks its
// handles: a null, stale or invented one leads to the call's failure result. Objects may be made
// and deleted on any thread; each is used by one thread at a time.

/// 0 for failure, else success.
using BOOL = int;
/// Red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
using COLORREF = unsigned long;

/// Names a device context; null names none.
using HDC = struct HDC__*;
/// Names a font, brush or bitmap; null names none.
using HGDIOBJ = void*;
