// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/files/file_name.h>
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/contours/dialogs/detail/contour_boxes.h>
#include <marlin/contours/dialogs/detail/contour_commands.h>
#include <marlin/contours/dialogs/detail/contour_list.h>
#include <marlin/contours/dialogs/detail/contour_saving.h>
#include <marlin/contours/dialogs/detail/read_file.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

#include <cmath>
#include <utility>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;
using enum MARLINSUITE::DIALOG;
using enum MARLINSUITE::CONTROL_ID;
using enum MARLINSUITE::COMMAND_ID;

namespace {

CString TextOf(MESSAGE message) {
    return CString(Message(message));
}

}  // namespace

struct CContourEditor::State {
    explicit State(CContourEditor& editor) : Commands(editor, List) {}

    ContourList List;
    ContourCommands Commands;
    ReadFile Read;
};

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
ON_NOTIFY(LVN_ENDLABELEDIT, CONTROL_CONTOUR_LIST, OnLevelTyped)
ON_NOTIFY(LVN_GETDISPINFO, CONTROL_CONTOUR_LIST, OnShowCell)
ON_NOTIFY(LVN_GETINFOTIP, CONTROL_CONTOUR_LIST, OnShowTip)
ON_NOTIFY(NM_CUSTOMDRAW, CONTROL_CONTOUR_LIST, OnDrawCell)
ON_WM_CONTEXTMENU()
ON_WM_HELPINFO()
END_MESSAGE_MAP()

CContourEditor::CContourEditor(CWnd* parent)
    : CDialog(DIALOG_CONTOURS, parent),
      m_State(std::make_unique<State>(*this)),
      m_Properties(this) {}

CContourEditor::~CContourEditor() = default;

const ContourDefinitionList& CContourEditor::Definitions() const noexcept {
    return m_State->List.Definitions();
}

void CContourEditor::SetDefinitions(ContourDefinitionList definitions, bool isSaved) {
    m_State->List.Edited.Start(std::move(definitions));
    m_HasDefinitions = true;
    m_IsUnsaved = !isSaved;
}

bool CContourEditor::IsChanged() const noexcept {
    return m_IsUnsaved || m_State->List.Edited.CanUndo();
}

void CContourEditor::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, CONTROL_CONTOUR_LIST, m_State->List.Control);
}

BOOL CContourEditor::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    m_State->List.InsertColumns();
    GetWindowText(m_Title);
    if (!m_FileName.IsEmpty()) {
        m_Title += " - " + GetTitleFromPath(m_FileName);
        SetWindowText(m_Title);
        m_State->Read.Note(m_FileName.GetString());
    }
    ContourDefinitionList read;
    if (!m_HasDefinitions && read.Load(m_FileName)) {
        m_State->List.Edited.Start(std::move(read));
    }
    UpdateContourList(0.0, false);
    return result;
}

void CContourEditor::UpdateContourList(double level, bool select) {
    m_State->List.Refill();
    if (select) {
        m_State->List.SelectLevel(level);
    }
    SetAddRemoveButtonState();
}

void CContourEditor::SelectCountourInList(int row) {
    m_State->List.Select(row);
}

void CContourEditor::SetAddRemoveButtonState() {
    const bool hasSelection = m_State->List.Control.GetSelectedCount() > 0;
    GetDlgItem(CONTROL_EDIT)->EnableWindow(hasSelection);
    GetDlgItem(CONTROL_REMOVE)->EnableWindow(hasSelection);
    if (m_AsksBeforeLoss) {
        SetWindowText(IsChanged() ? m_Title + " *" : m_Title);
    }
}

void CContourEditor::OnAddContour() {
    // The dialog may come from editing several definitions.
    m_Properties.SetDefinition({});
    m_Properties.SetSeveral(false);
    if (m_Properties.DoModal() != IDOK) {
        return;
    }
    const ContourDefInfo& added = m_Properties.Definition();
    if (m_State->List.Edited.Make([&added](auto& list) { return list.Add(added); }) < 0) {
        ShowError(*this, TextOf(MESSAGE::CONTOUR_NOT_ADDED));
    }
    UpdateContourList(added.Level, true);
}

void CContourEditor::OnEditContour() {
    const std::vector<int> rows = m_State->List.SelectedRows();
    if (rows.empty()) {
        return;
    }
    m_Properties.SetDefinition(m_State->List.At(rows.front()));
    m_Properties.SetSeveral(rows.size() > 1);
    if (m_Properties.DoModal() != IDOK) {
        SetAddRemoveButtonState();
        return;
    }
    if (Modify(m_Properties.Definition(), rows)) {
        UpdateContourList(0.0, false);
    }
    SelectCountourInList(rows.front());
    SetAddRemoveButtonState();
}

bool CContourEditor::Modify(const ContourDefInfo& edited, const std::vector<int>& rows) {
    if (m_State->List.MovesOntoAnother(edited, rows.front())) {
        ShowError(*this, TextOf(MESSAGE::CONTOUR_NOT_MODIFIED));
        return false;
    }
    m_State->List.Modify(edited, rows);
    return true;
}

void CContourEditor::OnRemoveContour() {
    const std::vector<int> rows = m_State->List.SelectedRows();
    m_State->List.Remove(rows);
    SelectCountourInList(rows.empty() ? 0 : rows.front());
    SetAddRemoveButtonState();
}

void CContourEditor::OnGenerateFromRange() {
    CContourGenerationDlg range(this);
    if (range.DoModal() != IDOK) {
        return;
    }
    const double lowest = range.LowestLevel();
    const double highest = range.HighestLevel();
    const double interval = range.Interval();
    if (!IsMeant(*this, lowest, highest, interval)) {
        return;
    }
    ShowGenerated(m_State->List.Edited.Make(
        [&](auto& list) { return list.Generate(lowest, highest, interval); }));
}

void CContourEditor::OnGenerateFromColorTable() {
    // A file that cannot be read leaves the table empty, which is refused.
    ColorTable table;
    if (AskForTable(*this, table)) {
        ShowGenerated(m_State->List.Edited.Make(
            [&table](auto& list) { return list.Generate(table, false); }));
    }
}

void CContourEditor::ShowGenerated(bool generated) {
    // First of all, since the list is painted beneath the box.
    UpdateContourList(0.0, false);
    if (!generated) {
        ShowError(*this, TextOf(MESSAGE::GENERATION_FAILED));
    }
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
    const UINT selected = m_State->List.Control.GetSelectedCount();
    const int key = reinterpret_cast<const NMLVKEYDOWN*>(header)->wVKey;
    // 1 keeps a key from the list and from the default button.
    *result = 1;
    if (key == VK_INSERT) {
        OnAddContour();
    } else if (key == VK_F2 && selected == 1) {
        m_State->Commands.Do(COMMAND_EDIT_LEVEL);
    } else if (key == VK_F2 || (key == VK_RETURN && selected > 0)) {
        OnEditContour();
    } else if (key == VK_DELETE && selected > 0) {
        OnRemoveContour();
    } else {
        *result = key == VK_DELETE ? 1 : 0;
    }
}

void CContourEditor::OnLevelTyped(NMHDR* header, LRESULT*) {
    const LVITEMA& item = reinterpret_cast<const NMLVDISPINFOA*>(header)->item;
    ContourDefInfo edited = m_State->List.At(item.iItem);
    if (!ParseWhole(item.pszText, edited.Level) || !std::isfinite(edited.Level)) {
        ShowError(*this, NumberWanted("Level", item.pszText));
    } else if (Modify(edited, {item.iItem})) {
        UpdateContourList(edited.Level, true);
    }
}

void CContourEditor::OnShowCell(NMHDR* header, LRESULT*) {
    m_State->List.ShowCell(*reinterpret_cast<NMLVDISPINFOA*>(header));
}

void CContourEditor::OnShowTip(NMHDR* header, LRESULT*) {
    m_State->List.ShowTip(*reinterpret_cast<NMLVGETINFOTIPA*>(header));
}

void CContourEditor::OnDrawCell(NMHDR* header, LRESULT*) {
    m_State->List.DrawCell(*reinterpret_cast<NMLVCUSTOMDRAW*>(header));
}

void CContourEditor::OnContextMenu(CWnd*, CPoint place) {
    m_State->Commands.Do(m_State->Commands.Choose(place));
    SetAddRemoveButtonState();
}

BOOL CContourEditor::PreTranslateMessage(const MSG* message) {
    const bool isShortcut = message->message == WM_KEYDOWN && GetKeyState(VK_CONTROL) < 0;
    const int command =
        isShortcut ? ContourCommands::OfKey(message->wParam, GetKeyState(VK_SHIFT) < 0) : 0;
    if (command == 0) {
        return CDialog::PreTranslateMessage(message);
    }
    m_State->Commands.Do(command);
    SetAddRemoveButtonState();
    return 1;
}

BOOL CContourEditor::OnHelpInfo(HELPINFO* help) {
    return HelpProvider::GetInstance().ShowHelpfile(this) ? 1 : CDialog::OnHelpInfo(help);
}

void CContourEditor::OnClose() {
    const bool asks = m_AsksBeforeLoss && IsChanged();
    const CString question = TextOf(MESSAGE::SAVE_CHANGED_LIST);
    const int answer =
        asks ? MessageBox(question, nullptr, MB_YESNOCANCEL | MB_ICONQUESTION) : IDNO;
    if (answer == IDYES) {
        OnOK();
    } else if (answer == IDNO) {
        CDialog::OnClose();
    }
}

void CContourEditor::OnOK() {
    if (!m_FileName.IsEmpty()) {
        ::FileName path(m_FileName);
        path.SetExtension("cdf");
        const std::string question = m_State->Read.QuestionBefore(path.c_str());
        if (!m_AsksBeforeLoss || question.empty() || Confirms(*this, CString(question))) {
            m_Result = SaveContours(Definitions(), path.c_str());
            CDialog::OnOK();
        }
    } else if (Confirms(*this, TextOf(MESSAGE::SAVE_CHANGES))) {
        m_Result = SaveContoursAsChosen(*this, Definitions());
        CDialog::OnOK();
    }
}
