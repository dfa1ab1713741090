// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/message_dispatch.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/window_system.h>

using PLATFORM::WindowSystem;
using PLATFORM::detail::CallHandler;
using PLATFORM::detail::WindowTable;

namespace {

template <typename Record>
Record* RecordAt(LPARAM lParam) noexcept {
    return reinterpret_cast<Record*>(lParam);
}

// The two halves of the word that WM_COMMAND packs.

UINT CodeOf(WPARAM wParam) noexcept {
    return static_cast<UINT>(wParam >> 16U) & 0xFFFFU;
}

int IdOf(WPARAM wParam) noexcept {
    // Signed, for the -1 of labels.
    return static_cast<short>(wParam & 0xFFFFU);
}

// The two halves of the word that WM_CONTEXTMENU packs: a place left of or above the first screen
// is negative.

int LowHalf(LPARAM word) noexcept {
    return static_cast<short>(word & 0xFFFF);
}

int HighHalf(LPARAM word) noexcept {
    return static_cast<short>(word >> 16 & 0xFFFF);
}

// The control that a message to its dialog is about, or null.
HWND ControlOf(UINT message, LPARAM lParam) noexcept {
    switch (message) {
        case WM_COMMAND:
            return RecordAt<HWND__>(lParam);
        case WM_NOTIFY:
            return RecordAt<NMHDR>(lParam)->hwndFrom;
        case WM_DRAWITEM:
            return RecordAt<DRAWITEMSTRUCT>(lParam)->hwndItem;
        default:
            return nullptr;
    }
}

}  // namespace

CWnd::~CWnd() {
    // A control belongs to its dialog and stays.
    if (m_hWnd && !WindowTable::Get().RemoveOwned(this)) {
        Detach();
    }
}

CWnd* CWnd::FromHandle(HWND window) {
    return WindowTable::Get().Wrapper(window);
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
    // Only owner-drawn buttons draw themselves, which are small.
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

bool CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return PostMessageA(m_hWnd, message, wParam, lParam) != 0;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(m_hWnd, message, wParam, lParam);
}

const AFX_MSGMAP* CWnd::GetThisMessageMap() {
    static constexpr AFX_MSGMAP map = {nullptr, nullptr, 0};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CWnd::PreTranslateMessage(const MSG*) {
    return 0;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    // The control's own class comes first; only what it leaves is for the dialog.
    CWnd* const control = FromHandle(ControlOf(message, lParam));
    if (control && control->OnChildNotify(message, wParam, lParam, &result)) {
        return result;
    }
    return CallOwnHandler(message, wParam, lParam, false, &result)
               ? result
               : DefWindowProc(message, wParam, lParam);
}

bool CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return CallOwnHandler(message, wParam, lParam, true, result);
}

bool CWnd::CallOwnHandler(UINT message, WPARAM wParam, LPARAM lParam, bool isReflected,
                          LRESULT* result) {
    PLATFORM::detail::Notice notice = {message, 0,     0, isReflected, RecordAt<void>(lParam),
                                       {},      result};
    if (message == WM_COMMAND) {
        notice.Code = CodeOf(wParam);
        notice.Id = IdOf(wParam);
    } else if (message == WM_NOTIFY) {
        const auto* const header = RecordAt<NMHDR>(lParam);
        notice.Code = header->code;
        notice.Id = static_cast<int>(header->idFrom);
    } else if (message == WM_CONTEXTMENU) {
        notice.Record = reinterpret_cast<void*>(wParam);
        notice.Place = {LowHalf(lParam), HighHalf(lParam)};
    }
    return CallHandler(*this, GetMessageMap(), notice);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == CB_ADDSTRING) {
        auto* const items = WindowSystem::Current().FindDropDown(m_hWnd);
        return items ? items->AddItem(RecordAt<const char>(lParam)) : -1;
    }
    // A request for help goes down from window to window until one of them has help.
    CWnd* const parent = message == WM_HELP ? GetParent() : nullptr;
    return parent ? parent->SendMessage(message, wParam, lParam) : 0;
}

BOOL CWnd::OnHelpInfo(HELPINFO* help) {
    return DefWindowProc(WM_HELP, 0, reinterpret_cast<LPARAM>(help)) != 0;
}

bool IsWindow(HWND window) noexcept {
    return window && WindowTable::Get().Has(window);
}
