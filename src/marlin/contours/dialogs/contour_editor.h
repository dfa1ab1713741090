// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/dialogs/edit_contour_dlg.h>
#include <marlin/platform/windowing/c_dialog.h>

#include <memory>
#include <string>
#include <vector>

/// How the editing of a contour definition file ended.
struct ContourEditResult {
    enum OUTCOME {
        CANCELLED,  ///< The user did not want the changes, or there was no display.
        SAVED,      ///< The list is in the file.
        NOT_SAVED,  ///< The user wanted the list saved, and it is not.
    };
    OUTCOME Outcome = CANCELLED;
    CString Path;       ///< The file that was, or should have been, written; empty for none.
    std::string Cause;  ///< For people: why the list was not saved.
};

/// The editor of a contour definition file. It shows the definitions from the highest level down.
/// Nothing reaches the disk before OK, which saves under the file name with the extension "cdf",
/// or asks for a name where there is none. Every change can be undone. An object is for one run.
/// @code
/// CContourEditor editor;
/// editor.FileName("harbour.cdf");
/// if (editor.DoModal() == IDOK && editor.HasSaveFailed()) {
///     std::puts(editor.Result().Cause.c_str());
/// }
/// @endcode
class MARLIN_API CContourEditor : public CDialog {
public:
    explicit CContourEditor(CWnd* parent = nullptr);
    ~CContourEditor() override;

    /// The file that is edited; empty for none.
    [[nodiscard]] const CString& FileName() const noexcept { return m_FileName; }
    void FileName(const CString& path) { m_FileName = path; }

    /// The definitions as the user left them.
    [[nodiscard]] const ContourDefinitionList& Definitions() const noexcept;
    /// Starts with this list, which is then not read from the file. `isSaved` when it is as the
    /// file holds it.
    void SetDefinitions(ContourDefinitionList definitions, bool isSaved);

    /// Guards what the user could lose: closing the frame and Escape ask whether a changed list
    /// is to be saved, OK asks before it replaces a file that is not the one that was opened or
    /// that another program has changed since, and the title of a changed list ends in "*". Off
    /// at first.
    void AskBeforeLoss(bool ask) noexcept { m_AsksBeforeLoss = ask; }

    [[nodiscard]] const ContourEditResult& Result() const noexcept { return m_Result; }
    /// True when OK could not save the list, of which the user sees nothing.
    [[nodiscard]] bool HasSaveFailed() const noexcept {
        return m_Result.Outcome == ContourEditResult::NOT_SAVED;
    }

    BOOL PreTranslateMessage(const MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnClose() override;

    void OnAddContour();
    void OnEditContour();
    void OnRemoveContour();
    void OnGenerateFromRange();
    void OnGenerateFromColorTable();
    void OnContextMenu(CWnd* control, CPoint place);
    void OnDblClickList(NMHDR* header, LRESULT* result);
    void OnClickContourListCtrl(NMHDR* header, LRESULT* result);
    void OnKeyInList(NMHDR* header, LRESULT* result);
    void OnLevelTyped(NMHDR* header, LRESULT* result);
    void OnShowCell(NMHDR* header, LRESULT* result);
    void OnShowTip(NMHDR* header, LRESULT* result);
    void OnDrawCell(NMHDR* header, LRESULT* result);
    BOOL OnHelpInfo(HELPINFO* help);

    DECLARE_MESSAGE_MAP()

private:
    using ContourDefInfo = ContourDefinitionList::ContourDefInfo;
    struct State;

    void UpdateContourList(double level, bool select);
    void SelectCountourInList(int row);
    void SetAddRemoveButtonState();

    [[nodiscard]] bool IsChanged() const noexcept;
    bool Modify(const ContourDefInfo& edited, const std::vector<int>& rows);
    void ShowGenerated(bool generated);

    std::unique_ptr<State> m_State;  ///< The list and its control.
    CEditContourDlg m_Properties;
    CString m_FileName;
    CString m_Title;
    ContourEditResult m_Result;
    bool m_HasDefinitions = false;
    bool m_IsUnsaved = false;
    bool m_AsksBeforeLoss = false;
};
