// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/window_system.h>

using PLATFORM::WindowSystem;
using PLATFORM::WindowTable;

CWnd::~CWnd() {
    if (m_hWnd && !WindowTable::Get().RemoveOwned(this)) {
        Detach();
    }
}

CWnd* CWnd::FromHandle(HWND window) {
    return WindowTable::Get().Wrapper(window);
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    return WindowTable::Get().Attached(window);
}

bool CWnd::Create() {
    if (m_hWnd) {
        return false;
    }
    WindowTable::Get().AddOwned(this);
    return true;
}

bool CWnd::DestroyWindow() {
    return WindowTable::Get().RemoveOwned(this);
}

int CWnd::GetDlgCtrlID() const {
    return WindowTable::Get().Id(m_hWnd);
}

CWnd* CWnd::GetParent() const {
    return FromHandle(WindowTable::Get().Parent(m_hWnd));
}

CWnd* CWnd::GetDlgItem(int id) const {
    return FromHandle(WindowTable::Get().Child(m_hWnd, id));
}

bool CWnd::Attach(HWND window) {
    return WindowTable::Get().Attach(window, this);
}

HWND CWnd::Detach() {
    WindowTable::Get().Detach(this);
    return m_hWnd.exchange(nullptr);
}

bool CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    return parent && Attach(WindowTable::Get().Child(parent->m_hWnd, static_cast<int>(id)));
}

void CWnd::GetWindowText(CString& text) const {
    text = WindowSystem::Current().Text(m_hWnd);
}

void CWnd::SetWindowText(const char* text) {
    WindowSystem::Current().SetText(m_hWnd, text);
}

bool CWnd::IsWindowEnabled() const {
    return WindowSystem::Current().IsEnabled(m_hWnd);
}

void CWnd::EnableWindow(bool enable) {
    WindowSystem::Current().Enable(m_hWnd, enable);
}

void CWnd::SetFocus() {
    WindowSystem::Current().SetFocus(m_hWnd);
}

void CWnd::InvalidateRect(const RECT*, bool) {
    WindowSystem::Current().Invalidate(m_hWnd);
}

int CWnd::MessageBox(const char* text, const char* caption, UINT type) {
    CString title = caption;
    if (!caption) {
        GetWindowText(title);
    }
    return WindowSystem::Current().ShowMessage(m_hWnd, {text, title, type});
}

bool CWnd::UpdateData(bool saveAndValidate) {
    CDataExchange exchange(this, saveAndValidate);
    DoDataExchange(&exchange);
    return !exchange.HasFailed();
}

void CWnd::DoDataExchange(CDataExchange*) {}

bool IsWindow(HWND window) noexcept {
    return window && WindowTable::Get().Has(window);
}
