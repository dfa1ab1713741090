// SPDX-License-Identifier: MIT
#pragma once

// Handles name drawing objects. Their values have no meaning to a caller. Every call checks its
// handles: a null, stale or invented one leads to the call's failure result. Objects may be made
// and deleted on any thread; each is used by one thread at a time.

using BOOL = int;
/// Red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
using COLORREF = unsigned long;

using HDC = struct HDC__*;
using HGDIOBJ = void*;
