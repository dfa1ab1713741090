// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/data_search.h>
#include <marlin/base/files/file_object.h>
#include <marlin/contours/dialogs/detail/contour_boxes.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/c_wnd.h>

#include <cmath>

namespace MARLINSUITE::detail {

namespace {

constexpr unsigned int contourData = 4;

}  // namespace

void ShowError(CWnd& editor, const CString& message) {
    editor.MessageBox(message, CString(Message(MESSAGE::ERROR_CAPTION)), MB_OK | MB_ICONERROR);
}

bool Confirms(CWnd& editor, const CString& question) {
    return editor.MessageBox(question, nullptr, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool IsMeant(CWnd& editor, double lowest, double highest, double interval) {
    // Most likely an interval was mistyped.
    constexpr double manyLevels = 10'000.0;
    const double count = std::floor((highest - lowest) / interval) + 1.0;
    if (!std::isfinite(count) || count <= manyLevels) {
        return true;
    }
    std::string question(Message(MESSAGE::GENERATE_MANY));
    AppendFixed(question, count, 0);
    return Confirms(editor, CString(question));
}

bool AskForFile(CWnd& editor, const char* extension, MESSAGE description, unsigned long flags,
                CString& path) {
    const CString filter = CString(Message(description)) + "|*." + extension + "||";
    CString folder;
    DataSearch::GetDataSearch().GetFilePath(contourData, folder);
    // Also asks for the name to save under, by the dialog for opening.
    CFileDialog dialog(true, extension, nullptr, flags, filter, &editor);
    dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    path = dialog.GetPathName();
    return true;
}

bool AskForTable(CWnd& editor, ColorTable& table) {
    CString path;
    if (!AskForFile(editor, "col", MESSAGE::COLOR_TABLE_FILES, OFN_HIDEREADONLY, path)) {
        return false;
    }
    FileObject file;
    file.FileOpen(path);
    table.FileOpen(file);
    return true;
}

}  // namespace MARLINSUITE::detail
