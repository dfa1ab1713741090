// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/text/c_string.h>
#include <marlin/resources/texts.h>

class ColorTable;
class CWnd;

namespace MARLINSUITE::detail {

// The boxes of the contour editor.

void ShowError(CWnd& editor, const CString& message);
/// True for Yes.
[[nodiscard]] bool Confirms(CWnd& editor, const CString& question);
/// Asks before a range gives more levels than a chart shows. True for fewer.
[[nodiscard]] bool IsMeant(CWnd& editor, double lowest, double highest, double interval);
/// Asks for a file, at first in the folder of contour data. False, and the path unchanged, when
/// none was chosen.
bool AskForFile(CWnd& editor, const char* extension, MESSAGE description, unsigned long flags,
                CString& path);

/// Asks for a color table file and reads it; a file that cannot be read leaves the table empty.
/// False when none was chosen.
bool AskForTable(CWnd& editor, ColorTable& table);

}  // namespace MARLINSUITE::detail
