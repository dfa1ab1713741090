// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/data_search.h>
#include <marlin/base/files/file_name.h>
#include <marlin/base/files/file_object.h>
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/contours/dialogs/detail/contour_rows.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

#include <algorithm>

using MARLINSUITE::MESSAGE;
using MARLINSUITE::Message;
using MARLINSUITE::detail::SelectedRows;
using enum MARLINSUITE::DIALOG;
using enum MARLINSUITE::CONTROL_ID;

namespace {

constexpr unsigned int contourData = 4;

}  // namespace

BEGIN_MESSAGE_MAP(CContourEditor, CDialog)
ON_BN_CLICKED(CONTROL_ADD, OnAddContour)
ON_BN_CLICKED(CONTROL_EDIT, OnEditContour)
ON_BN_CLICKED(CONTROL_REMOVE, OnRemoveContour)
ON_BN_CLICKED(CONTROL_RANGE, OnGenerateFromRange)
ON_BN_CLICKED(CONTROL_COLOR_TABLE, OnGenerateFromColorTable)
ON_NOTIFY(NM_DBLCLK, CONTROL_CONTOUR_LIST, OnDblClickList)
ON_NOTIFY(NM_CLICK, CONTROL_CONTOUR_LIST, OnClickContourListCtrl)
ON_NOTIFY(LVN_ITEMCHANGED, CONTROL_CONTOUR_LIST, OnClickContourListCtrl)
ON_NOTIFY(LVN_KEYDOWN, CONTROL_CONTOUR_LIST, OnKeyInList)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

CContourEditor::CContourEditor(CWnd* parent)
    : CDialog(DIALOG_CONTOURS, parent), m_Properties(this) {}

void CContourEditor::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, CONTROL_CONTOUR_LIST, m_List);
}

BOOL CContourEditor::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    MARLINSUITE::detail::InsertContourColumns(m_List);
    if (m_FileName.IsEmpty()) {
        return result;
    }
    CString title;
    GetWindowText(title);
    SetWindowText(title + " - " + GetTitleFromPath(m_FileName));
    if (m_Definitions.Load(m_FileName)) {
        UpdateContourList(0.0, false);
    }
    return result;
}

void CContourEditor::UpdateContourList(double level, bool select) {
    MARLINSUITE::detail::ShowContours(m_Definitions, m_Images, m_List);
    const int row = select ? MARLINSUITE::detail::RowOfLevel(m_List, level) : -1;
    if (row >= 0) {
        SelectCountourInList(row);
    }
    SetAddRemoveButtonState();
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

int CContourEditor::DefinitionOfRow(int row) const noexcept {
    return m_Definitions.NumContours() - 1 - row;
}

void CContourEditor::OnAddContour() {
    // The dialog may come from editing several definitions.
    m_Properties.SetDefinition({});
    m_Properties.SetSeveral(false);
    if (m_Properties.DoModal() != IDOK) {
        return;
    }
    const ContourDefInfo& added = m_Properties.Definition();
    if (m_Definitions.Add(added) < 0) {
        ShowError(MESSAGE::CONTOUR_NOT_ADDED);
    }
    UpdateContourList(added.Level, true);
}

void CContourEditor::OnEditContour() {
    const std::vector<int> rows = SelectedRows(m_List);
    if (rows.empty()) {
        return;
    }
    const int first = DefinitionOfRow(rows.front());
    m_Properties.SetDefinition(m_Definitions[first]);
    m_Properties.SetSeveral(rows.size() > 1);
    if (m_Properties.DoModal() != IDOK) {
        SetAddRemoveButtonState();
        return;
    }
    const ContourDefInfo& edited = m_Properties.Definition();
    if (MovesOntoAnother(edited, first)) {
        ShowError(MESSAGE::CONTOUR_NOT_MODIFIED);
    } else {
        ApplyToRows(edited, rows);
        UpdateContourList(0.0, false);
    }
    SelectCountourInList(rows.front());
    SetAddRemoveButtonState();
}

bool CContourEditor::MovesOntoAnother(const ContourDefInfo& edited, int index) const noexcept {
    return edited.Level != m_Definitions[index].Level && m_Definitions.Find(edited.Level) >= 0;
}

void CContourEditor::ApplyToRows(const ContourDefInfo& edited, const std::vector<int>& rows) {
    for (const int row : rows) {
        const int index = DefinitionOfRow(row);
        ContourDefInfo changed = edited;
        if (rows.size() > 1) {
            changed.Level = m_Definitions[index].Level;
        }
        m_Definitions.Set(index, changed);
    }
}

void CContourEditor::OnRemoveContour() {
    const std::vector<int> rows = SelectedRows(m_List);
    // Rows at the top are definitions at the end, so neither moves what is still to be removed.
    const int last = DefinitionOfRow(0);
    for (const int row : rows) {
        m_Definitions.Remove(last - row);
    }
    std::for_each(rows.rbegin(), rows.rend(), [this](int row) { m_List.DeleteItem(row); });
    SelectCountourInList(rows.empty() ? 0 : rows.front());
    SetAddRemoveButtonState();
}

void CContourEditor::OnGenerateFromRange() {
    CContourGenerationDlg range(this);
    if (range.DoModal() == IDOK) {
        ShowGenerated(
            m_Definitions.Generate(range.LowestLevel(), range.HighestLevel(), range.Interval()));
    }
}

void CContourEditor::OnGenerateFromColorTable() {
    CString path;
    if (!AskForFile("col", MESSAGE::COLOR_TABLE_FILES, OFN_HIDEREADONLY, path)) {
        return;
    }
    // A file that cannot be read leaves the table empty, which is refused.
    FileObject file;
    ColorTable table;
    file.FileOpen(path);
    table.FileOpen(file);
    ShowGenerated(m_Definitions.Generate(table, false));
}

void CContourEditor::ShowGenerated(bool generated) {
    if (!generated) {
        ShowError(MESSAGE::GENERATION_FAILED);
    }
    UpdateContourList(0.0, false);
}

void CContourEditor::OnDblClickList(NMHDR*, LRESULT* result) {
    OnEditContour();
    *result = 0;
}

void CContourEditor::OnClickContourListCtrl(NMHDR*, LRESULT* result) {
    SetAddRemoveButtonState();
    *result = 0;
}

void CContourEditor::OnKeyInList(NMHDR* header, LRESULT* result) {
    // 1 keeps a key from the list and from the default button.
    *result = 1;
    switch (reinterpret_cast<const NMLVKEYDOWN*>(header)->wVKey) {
        case VK_INSERT:
            OnAddContour();
            break;
        case VK_F2:
        case VK_RETURN:
            OnEditContour();
            break;
        case VK_DELETE:
            OnRemoveContour();
            break;
        default:
            *result = 0;
    }
}

BOOL CContourEditor::OnHelpInfo(HELPINFO* help) {
    return HelpProvider::GetInstance().ShowHelpfile(this) ? 1 : CDialog::OnHelpInfo(help);
}

void CContourEditor::OnOK() {
    if (!m_FileName.IsEmpty()) {
        ::FileName path(m_FileName);
        path.SetExtension("cdf");
        m_HasSaveFailed = !m_Definitions.Save(path.c_str());
        CDialog::OnOK();
        return;
    }
    const CString question(Message(MESSAGE::SAVE_CHANGES));
    if (MessageBox(question, nullptr, MB_YESNO | MB_ICONQUESTION) == IDYES) {
        SaveUnderChosenName();
        CDialog::OnOK();
    }
}

void CContourEditor::SaveUnderChosenName() {
    CString path;
    if (AskForFile("cdf", MESSAGE::CONTOUR_FILES, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, path)) {
        m_HasSaveFailed = !m_Definitions.Save(path);
    }
}

void CContourEditor::ShowError(MESSAGE message) {
    MessageBox(CString(Message(message)), CString(Message(MESSAGE::ERROR_CAPTION)),
               MB_OK | MB_ICONERROR);
}

bool CContourEditor::AskForFile(const char* extension, MESSAGE description, unsigned long flags,
                                CString& path) {
    const CString filter = CString(Message(description)) + "|*." + extension + "||";
    CString folder;
    DataSearch::GetDataSearch().GetFilePath(contourData, folder);
    // Also asks for the name to save under, by the dialog for opening.
    CFileDialog dialog(true, extension, nullptr, flags, filter, this);
    dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    path = dialog.GetPathName();
    return true;
}
