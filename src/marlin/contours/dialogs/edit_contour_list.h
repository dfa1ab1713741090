// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

namespace DLG {

/// Lets the user edit a contour definition file, or a new list for an empty path, in the current
/// window system. True when the editor was closed with OK, also when the file could not be saved:
/// for that ask for the result. False also without a display.
/// @code
/// if (DLG::EditContourList("harbour.cdf")) {
///     ContourDefinitionList list;
///     list.Load("harbour.cdf");
/// }
/// @endcode
MARLIN_API bool EditContourList(const CString& path);
/// The same above a window of the host's, null for none. Tells in `result` how it ended.
MARLIN_API bool EditContourList(const CString& path, ContourEditResult& result,
                                CWnd* parent = nullptr);

}  // namespace DLG
