// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/files/file_name.h>
#include <marlin/base/files/file_object.h>
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

#include <algorithm>

using MARLINSUITE::MESSAGE;
using enum MARLINSUITE::DIALOG;
using enum MARLINSUITE::CONTROL_ID;

namespace {

constexpr unsigned int readOnlySharedByAll = 0x20;

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

CContourEditor::~CContourEditor() = default;

void CContourEditor::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, CONTROL_CONTOUR_LIST, m_List);
}

BOOL CContourEditor::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    InsertColumns();
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

void CContourEditor::OnAddContour() {
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
    const std::vector<int> rows = SelectedRows();
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
    const std::vector<int> rows = SelectedRows();
    std::vector<int> indices(rows.size());
    std::ranges::transform(rows, indices.begin(), [this](int row) { return DefinitionOfRow(row); });
    for (const int index : indices) {
        m_Definitions.Remove(index);
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
    FileObject file;
    ColorTable table;
    file.FileOpen(path, readOnlySharedByAll);
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
    CString question;
    question.LoadString(static_cast<unsigned int>(MESSAGE::SAVE_CHANGES));
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
