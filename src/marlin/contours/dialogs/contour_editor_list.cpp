// SPDX-License-Identifier: MIT
#include <marlin/base/data_search.h>
#include <marlin/base/marlin_string.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/detail/fixed_number.h>
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

using MARLINSUITE::FixedNumber;
using MARLINSUITE::LevelDecimals;
using MARLINSUITE::MESSAGE;
using MARLINSUITE::WidthDecimals;
using enum MARLINSUITE::CONTROL_ID;

namespace {

enum COLUMN { LEVEL, ANNOTATION, WIDTH, TYPE };

constexpr int swatchSize = 16;
constexpr unsigned int contourData = 4;
constexpr COLORREF black = 0;

CString Loaded(MESSAGE message) {
    CString text;
    text.LoadString(static_cast<unsigned int>(message));
    return text;
}

}  // namespace

void CContourEditor::InsertColumns() {
    m_List.InsertColumn(LEVEL, Loaded(MESSAGE::COLUMN_LEVEL), LVCFMT_LEFT, 70);
    m_List.InsertColumn(ANNOTATION, Loaded(MESSAGE::COLUMN_ANNOTATION), LVCFMT_LEFT, 50);
    m_List.InsertColumn(WIDTH, Loaded(MESSAGE::COLUMN_WIDTH), LVCFMT_LEFT, 50);
    m_List.InsertColumn(TYPE, Loaded(MESSAGE::COLUMN_TYPE), LVCFMT_LEFT, 50);
}

void CContourEditor::RebuildSwatches() {
    CDC dc;
    CBitmap surface;
    m_Images.DeleteImageList();
    m_Images.Create(swatchSize, swatchSize, ILC_COLOR32 | ILC_MASK, m_Definitions.NumContours(), 1);
    dc.CreateCompatibleDC(nullptr);
    surface.CreateCompatibleBitmap(&dc, swatchSize, swatchSize);
    CBitmap* const before = dc.SelectObject(&surface);
    const RECT swatch = {0, 0, swatchSize, swatchSize};
    for (int index = 0; index < m_Definitions.NumContours(); ++index) {
        CBrush brush(m_Definitions[index].Color);
        dc.FillRect(&swatch, &brush);
        m_Images.Add(&surface, black);
    }
    dc.SelectObject(before);
    m_List.SetImageList(&m_Images, LVSIL_SMALL);
}

void CContourEditor::InsertRow(int index) {
    const ContourDefInfo& definition = m_Definitions[index];
    const int row = m_List.InsertItem(m_List.GetItemCount(),
                                      FixedNumber(definition.Level, LevelDecimals), index);
    const auto width = static_cast<double>(definition.LineWidth);
    m_List.SetItemText(row, ANNOTATION, definition.Annotate ? "Yes" : "No");
    m_List.SetItemText(row, WIDTH, FixedNumber(width, WidthDecimals));
    CString type;
    CMarlinString(Loaded(MESSAGE::LINE_TYPES), ',').GetItem(definition.LineType, type);
    m_List.SetItemText(row, TYPE, type);
}

void CContourEditor::UpdateContourList(double level, bool select) {
    RebuildSwatches();
    m_List.DeleteAllItems();
    for (int index = m_Definitions.NumContours() - 1; index >= 0; --index) {
        InsertRow(index);
    }
    if (select) {
        SelectLevel(level);
    }
    SetAddRemoveButtonState();
}

void CContourEditor::SelectLevel(double level) {
    const CString text = FixedNumber(level, LevelDecimals);
    for (int row = 0; row < m_List.GetItemCount(); ++row) {
        if (m_List.GetItemText(row, LEVEL) == text) {
            SelectCountourInList(row);
            return;
        }
    }
}

void CContourEditor::SelectCountourInList(int row) {
    constexpr UINT states = LVIS_SELECTED | LVIS_FOCUSED;
    m_List.EnsureVisible(row, false);
    m_List.SetSelectionMark(row);
    m_List.SetItemState(row, states, states);
    m_List.SetFocus();
}

void CContourEditor::SetAddRemoveButtonState() {
    const bool hasSelection = m_List.GetSelectedCount() > 0;
    GetDlgItem(CONTROL_EDIT)->EnableWindow(hasSelection);
    GetDlgItem(CONTROL_REMOVE)->EnableWindow(hasSelection);
}

std::vector<int> CContourEditor::SelectedRows() const {
    std::vector<int> rows;
    int row = m_List.GetNextItem(-1, LVNI_SELECTED);
    while (row >= 0) {
        rows.push_back(row);
        row = m_List.GetNextItem(row, LVNI_SELECTED);
    }
    return rows;
}

int CContourEditor::DefinitionOfRow(int row) const noexcept {
    return m_Definitions.NumContours() - 1 - row;
}

void CContourEditor::ShowError(MESSAGE message) {
    MessageBox(Loaded(message), Loaded(MESSAGE::ERROR_CAPTION), MB_OK | MB_ICONERROR);
}

bool CContourEditor::AskForFile(const char* extension, MESSAGE description, unsigned long flags,
                                CString& path) {
    const CString filter = Loaded(description) + "|*." + extension + "||";
    CString folder;
    DataSearch::GetDataSearch().GetFilePath(contourData, folder);
    CFileDialog dialog(true, extension, nullptr, flags, filter, this);
    dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    path = dialog.GetPathName();
    return true;
}
