// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/edit_contour_list.h>

bool DLG::EditContourList(const CString& path) {
    ContourEditResult result;
    return EditContourList(path, result);
}

bool DLG::EditContourList(const CString& path, ContourEditResult& result, CWnd* parent) {
    CContourEditor editor(parent);
    editor.FileName(path);
    const bool isConfirmed = editor.DoModal() == IDOK;
    result = editor.Result();
    return isConfirmed;
}
