// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/dialogs/edit_contour_dlg.h>
#include <marlin/platform/windowing/c_dialog.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/c_list_ctrl.h>
#include <marlin/resources/texts.h>

#include <vector>

/// The editor of a contour definition file. It shows the definitions from the highest level down.
/// Nothing reaches the disk before OK, which saves under the file name with the extension "cdf",
/// or asks for a name where there is none. An object is for one run.
/// @code
/// CContourEditor editor;
/// editor.FileName("harbour.cdf");
/// if (editor.DoModal() == IDOK && editor.HasSaveFailed()) {
///     std::puts(ErrorString::LastError().Text().c_str());
/// }
/// @endcode
class MARLIN_API CContourEditor : public CDialog {
public:
    explicit CContourEditor(CWnd* parent = nullptr);

    /// The file that is edited; empty for none.
    [[nodiscard]] const CString& FileName() const noexcept { return m_FileName; }
    void FileName(const CString& path) { m_FileName = path; }

    /// The definitions as the user left them.
    [[nodiscard]] const ContourDefinitionList& Definitions() const noexcept {
        return m_Definitions;
    }

    /// True when OK could not save the list, of which the user sees nothing.
    /// `ErrorString::LastError` then has the cause.
    [[nodiscard]] bool HasSaveFailed() const noexcept { return m_HasSaveFailed; }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    void OnAddContour();
    void OnEditContour();
    void OnRemoveContour();
    void OnGenerateFromRange();
    void OnGenerateFromColorTable();
    void OnDblClickList(NMHDR* header, LRESULT* result);
    void OnClickContourListCtrl(NMHDR* header, LRESULT* result);
    void OnKeyInList(NMHDR* header, LRESULT* result);
    BOOL OnHelpInfo(HELPINFO* help);

    DECLARE_MESSAGE_MAP()

private:
    using ContourDefInfo = ContourDefinitionList::ContourDefInfo;

    void UpdateContourList(double level, bool select);
    void SelectCountourInList(int row);
    void SetAddRemoveButtonState();

    [[nodiscard]] int DefinitionOfRow(int row) const noexcept;
    [[nodiscard]] bool MovesOntoAnother(const ContourDefInfo& edited, int index) const noexcept;
    void ApplyToRows(const ContourDefInfo& edited, const std::vector<int>& rows);
    void ShowGenerated(bool generated);
    void ShowError(MARLINSUITE::MESSAGE message);
    bool AskForFile(const char* extension, MARLINSUITE::MESSAGE description, unsigned long flags,
                    CString& path);
    void SaveUnderChosenName();

    ContourDefinitionList m_Definitions;
    CEditContourDlg m_Properties;
    CImageList m_Images;
    CString m_FileName;
    bool m_HasSaveFailed = false;
    CListCtrl m_List;
};
