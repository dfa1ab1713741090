// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/dialog_template.h>

/// A modal dialog made from a template. Its window exists while `DoModal` runs; one object may
/// be run again and again.
class MARLIN_API CDialog : public CWnd {
public:
    CDialog() noexcept = default;
    /// By the number of one of the library's templates.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr) noexcept;
    ~CDialog() override;

    /// Takes a template of the host's, which must outlive the dialog.
    bool InitModalIndirect(const PLATFORM::DialogTemplate* form, CWnd* parent = nullptr) noexcept;

    /// Shows the dialog until it is ended and returns how: `IDOK`, `IDCANCEL`, another number
    /// given to `EndDialog`; -1 without a template or without anything to show it on, and while
    /// it is shown already.
    virtual int DoModal();
    void EndDialog(int result);

protected:
    /// Called before the dialog is shown; brings the fields to the controls. The result tells
    /// whether the first control may have the focus.
    virtual BOOL OnInitDialog();
    /// Brings the controls to the fields and ends the dialog, or leaves it open when a text is
    /// refused.
    virtual void OnOK();
    /// Ends the dialog and leaves the fields.
    virtual void OnCancel();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()

private:
    bool CreateWindows();
    void FocusFirst();
    void Destroy();
    void CallOnOK() { OnOK(); }
    void CallOnCancel() { OnCancel(); }

    const PLATFORM::DialogTemplate* m_Template = nullptr;
    CWnd* m_Parent = nullptr;
    int m_EarlyResult = 0;
    bool m_IsRunning = false;
    bool m_HasEnded = false;
};
