// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/message_targets.h>

#include <cstdint>

namespace {

constinit std::atomic<std::uintptr_t> lastHandle{0};

}  // namespace

CWnd::~CWnd() {
    EndWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    return PLATFORM::FindMessageTarget(window).Window;
}

bool CWnd::Create() {
    if (m_Window.load()) {
        return false;
    }
    const auto window = reinterpret_cast<HWND>(++lastHandle);
    PLATFORM::AddMessageTarget(window, this);
    m_Window.store(window);
    return true;
}

bool CWnd::DestroyWindow() {
    return EndWindow();
}

bool CWnd::EndWindow() {
    const HWND window = m_Window.exchange(nullptr);
    if (window) {
        PLATFORM::RemoveMessageTarget(window);
    }
    return window != nullptr;
}

bool CWnd::PostMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    return PostMessageA(GetSafeHwnd(), message, wParam, lParam) != 0;
}

LRESULT CWnd::SendMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(GetSafeHwnd(), message, wParam, lParam);
}

LRESULT CWnd::WindowProc(unsigned int, WPARAM, LPARAM) {
    return 0;
}
