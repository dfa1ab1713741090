// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/dialogs/contour_editor.h>

namespace MARLINSUITE::detail {

/// Saves the list and tells how that ended.
[[nodiscard]] ContourEditResult SaveContours(const ContourDefinitionList& list,
                                             const CString& path);
/// The same in a file that the user chooses.
[[nodiscard]] ContourEditResult SaveContoursAsChosen(CWnd& editor,
                                                     const ContourDefinitionList& list);

}  // namespace MARLINSUITE::detail
