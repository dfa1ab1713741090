// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/edit_contour_list.h>

bool DLG::EditContourList(const CString& path) {
    CContourEditor editor;
    editor.FileName(path);
    return editor.DoModal() == IDOK;
}
