// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/window_system.h>

#include <span>

using PLATFORM::WindowSystem;

/// A message as the entries of message maps tell them apart.
struct CWnd::Notice {
    UINT Message = 0;
    UINT Code = 0;
    int Id = 0;
    bool IsReflected = false;
    void* Record = nullptr;
    LRESULT* Result = nullptr;

    [[nodiscard]] bool Fits(const AFX_MSGMAP_ENTRY& entry) const noexcept {
        return entry.nMessage == Message && entry.nCode == Code &&
               entry.bReflected == IsReflected && (IsReflected || entry.nID == Id);
    }
    void Call(CWnd& window, void (CWnd::*handler)()) const { (window.*handler)(); }
    void Call(CWnd& window, void (CWnd::*handler)(NMHDR*, LRESULT*)) const {
        (window.*handler)(static_cast<NMHDR*>(Record), Result);
    }
    void Call(CWnd& window, BOOL (CWnd::*handler)(HELPINFO*)) const {
        *Result = (window.*handler)(static_cast<HELPINFO*>(Record));
    }
};

namespace {

template <typename Record>
Record* RecordAt(LPARAM lParam) noexcept {
    return reinterpret_cast<Record*>(lParam);
}

UINT CodeOf(WPARAM wParam) noexcept {
    return static_cast<UINT>(wParam >> 16U) & 0xFFFFU;
}

int IdOf(WPARAM wParam) noexcept {
    return static_cast<short>(wParam & 0xFFFFU);
}

}  // namespace

const AFX_MSGMAP* CWnd::GetThisMessageMap() {
    static constexpr AFX_MSGMAP map = {nullptr, nullptr, 0};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const {
    return GetThisMessageMap();
}

bool CWnd::Dispatch(const Notice& notice) {
    const AFX_MSGMAP* map = GetMessageMap();
    while (map) {
        for (const auto& entry : std::span(map->lpEntries, static_cast<size_t>(map->nEntries))) {
            if (notice.Fits(entry)) {
                std::visit([&](auto handler) { notice.Call(*this, handler); }, entry.pfn);
                return true;
            }
        }
        map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
    }
    return false;
}

bool CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return PostMessageA(m_hWnd, message, wParam, lParam) != 0;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(m_hWnd, message, wParam, lParam);
}

bool CWnd::TellChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    CWnd* const wrapper = FromHandle(child);
    return wrapper && wrapper->OnChildNotify(message, wParam, lParam, result);
}

bool CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        return Dispatch({message, CodeOf(wParam), 0, true, nullptr, result});
    }
    if (message == WM_NOTIFY) {
        auto* const header = RecordAt<NMHDR>(lParam);
        return Dispatch({message, header->code, 0, true, header, result});
    }
    return false;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    bool isDone = false;
    if (message == WM_COMMAND) {
        isDone = TellChild(RecordAt<HWND__>(lParam), message, wParam, lParam, &result) ||
                 Dispatch({message, CodeOf(wParam), IdOf(wParam), false, nullptr, &result});
    } else if (message == WM_NOTIFY) {
        auto* const header = RecordAt<NMHDR>(lParam);
        const int id = static_cast<int>(header->idFrom);
        isDone = TellChild(header->hwndFrom, message, wParam, lParam, &result) ||
                 Dispatch({message, header->code, id, false, header, &result});
    } else if (message == WM_DRAWITEM) {
        const HWND child = RecordAt<DRAWITEMSTRUCT>(lParam)->hwndItem;
        isDone = TellChild(child, message, wParam, lParam, &result);
    } else if (message == WM_HELP) {
        isDone = Dispatch({message, 0, 0, false, RecordAt<HELPINFO>(lParam), &result});
    }
    return isDone ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == CB_ADDSTRING) {
        return WindowSystem::Current().AddItem(m_hWnd, RecordAt<const char>(lParam));
    }
    if (CWnd* const parent = message == WM_HELP ? GetParent() : nullptr) {
        return parent->SendMessage(message, wParam, lParam);
    }
    return 0;
}

BOOL CWnd::OnHelpInfo(HELPINFO* help) {
    return DefWindowProc(WM_HELP, 0, reinterpret_cast<LPARAM>(help)) != 0;
}
