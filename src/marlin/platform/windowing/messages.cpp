// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/messages.h>

#include <utility>

using PLATFORM::detail::MessageQueue;
using PLATFORM::detail::MessageTarget;
using PLATFORM::detail::WindowTable;

int PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const MessageTarget target = WindowTable::Get().Target(window);
    if (!target.Window) {
        return 0;
    }
    target.Queue->Post({window, message, wParam, lParam});
    return 1;
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Another thread would have to be waited for, and may be waiting for this one.
    const MessageTarget target = WindowTable::Get().Target(window);
    return target.IsOfThisThread() ? target.Window->WindowProc(message, wParam, lParam) : 0;
}

int PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    const bool found = message && MessageQueue::OfThisThread()->Peek(
                                      *message, {window, first, last}, (remove & PM_REMOVE) != 0);
    return found ? 1 : 0;
}

int GetMessageA(MSG* message, HWND window, UINT first, UINT last) {
    // A window of another thread, or none, would have the caller wait for ever.
    if (!message || (window && !WindowTable::Get().Target(window).IsOfThisThread())) {
        return -1;
    }
    MessageQueue::OfThisThread()->Get(*message, {window, first, last});
    return 1;
}

LRESULT DispatchMessageA(const MSG* message) {
    return message ? SendMessageA(message->hwnd, message->message, message->wParam, message->lParam)
                   : 0;
}

void PLATFORM::WakeWhenPosted(std::function<void()> wake) {
    MessageQueue::OfThisThread()->WakeBy(std::move(wake));
}

void PLATFORM::DispatchWaiting() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        DispatchMessageA(&message);
    }
}
