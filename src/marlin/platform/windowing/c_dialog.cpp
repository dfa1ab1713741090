// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_dialog.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/window_system.h>

#include <vector>

using PLATFORM::WindowSystem;
using PLATFORM::detail::WindowTable;

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_BN_CLICKED(IDOK, OnOK)
ON_BN_CLICKED(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) noexcept
    : m_Template(PLATFORM::FindDialogTemplate(templateId)), m_Parent(parent) {}

bool CDialog::InitModalIndirect(const PLATFORM::DialogTemplate* form, CWnd* parent) noexcept {
    if (!form || m_hWnd) {
        return false;
    }
    m_Template = form;
    m_Parent = parent;
    return true;
}

bool CDialog::CreateWindows() {
    WindowTable& windows = WindowTable::Get();
    const HWND parent = m_Parent ? m_Parent->GetSafeHwnd() : nullptr;
    const HWND dialog = windows.Add(parent, 0);
    // Labels get windows too, so that controls and template match by their order.
    std::vector<HWND> controls;
    for (std::size_t i = 0; i < m_Template->Controls.size(); ++i) {
        controls.push_back(
            windows.Add(dialog, m_Template->Controls[i].Id, PLATFORM::NameOf(*m_Template, i)));
    }
    Attach(dialog);
    if (!WindowSystem::Current().CreateDialog(dialog, *m_Template, controls, parent)) {
        windows.Remove(dialog);
        return false;
    }
    return true;
}

void CDialog::FocusFirst() {
    for (const PLATFORM::ControlTemplate& control : m_Template->Controls) {
        CWnd* const window = GetDlgItem(control.Id);
        if (control.Kind != PLATFORM::CONTROL::LABEL && window->IsWindowEnabled()) {
            window->SetFocus();
            return;
        }
    }
}

int CDialog::DoModal() {
    if (!m_Template || m_hWnd || !CreateWindows()) {
        return WindowSystem::Failed;
    }
    const HWND dialog = m_hWnd;
    if (OnInitDialog()) {
        FocusFirst();
    }
    // Returns at once when OnInitDialog has ended the dialog.
    WindowSystem& system = WindowSystem::Current();
    const int result = system.RunDialog(dialog);
    system.DestroyDialog(dialog);
    WindowTable::Get().Remove(dialog);
    return result;
}

void CDialog::EndDialog(int result) {
    WindowSystem::Current().EndDialog(m_hWnd, result);
}

BOOL CDialog::OnInitDialog() {
    UpdateData(false);
    return 1;
}

void CDialog::OnOK() {
    if (UpdateData(true)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) {
        OnClose();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
