// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/dialog_template.h>

/// A modal dialog made from a template. Its window exists while `DoModal` runs; the object may be
/// run again and again. A host's dialog derives from it, exchanges its fields in `DoDataExchange`
/// and has handlers in a message map.
/// @code
/// struct Depth : CDialog {
///     double Level = 5.0;
///     Depth() : CDialog(MARLINSUITE::DIALOG_CONTOUR_PROPERTIES) {}
///     void DoDataExchange(CDataExchange* exchange) override {
///         DDX_Text(exchange, MARLINSUITE::CONTROL_LEVEL, Level);
///     }
/// };
/// Depth dialog;
/// const bool isConfirmed = dialog.DoModal() == IDOK;
/// @endcode
class MARLIN_API CDialog : public CWnd {
public:
    CDialog() noexcept = default;
    /// By the number of one of the library's templates.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr) noexcept;

    /// Takes a template of the host's, which has to outlive the dialog. False, and nothing
    /// changed, for null and while the dialog is shown.
    bool InitModalIndirect(const PLATFORM::DialogTemplate* form, CWnd* parent = nullptr) noexcept;

    /// Shows the dialog until it is ended and returns the number given to `EndDialog`: `IDOK`,
    /// `IDCANCEL` or another; -1 without a template, without a display to show it on, and while
    /// it is shown already.
    virtual int DoModal();
    void EndDialog(int result);

protected:
    /// Called before the dialog is shown; copies the fields to the controls. Where the result is
    /// not 0, the first control gets the focus.
    virtual BOOL OnInitDialog();
    /// Copies the controls to the fields and ends the dialog; leaves it open when a text is
    /// refused.
    virtual void OnOK();
    /// Ends the dialog and leaves the fields as they are.
    virtual void OnCancel();
    /// Called for the frame and for Escape; cancels the dialog.
    virtual void OnClose() { OnCancel(); }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()

private:
    bool CreateWindows();
    void FocusFirst();

    const PLATFORM::DialogTemplate* m_Template = nullptr;
    CWnd* m_Parent = nullptr;
};
