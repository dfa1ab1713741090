// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstdint>
#include <functional>

// Window messages: how they are posted, sent, waited for and handled. Their numbers are in
// windowing_constants.h, the records that some of them carry in message_records.h.

/// Names a window until it is destroyed; null names none. A value is never given twice.
using HWND = struct HWND__*;
/// Numbers of messages and controls.
using UINT = unsigned int;
/// The first value that a message carries; what it means depends on the message.
using WPARAM = std::uintptr_t;
/// The second value that a message carries, often an address.
using LPARAM = std::intptr_t;
/// What handling a message results in; what it means depends on the message.
using LRESULT = std::intptr_t;

/// The first message number that is an application's own.
inline constexpr UINT WM_USER = 0x0400;

inline constexpr UINT PM_NOREMOVE = 0;
inline constexpr UINT PM_REMOVE = 1;

/// A message to a window, with two parameters whose meaning is the message's.
struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

/// Negative while `VK_SHIFT` or `VK_CONTROL` is held with the key that is being handled, else 0.
[[nodiscard]] MARLIN_API short GetKeyState(int key);

/// Appends a message to the queue of the thread that made the window and returns at once: 1, or
/// 0 when there is no such window. May be called from any thread; the window handles the message
/// when its own thread dispatches it.
/// @code
/// CWnd window;
/// window.Create();
/// PostMessageA(window.GetSafeHwnd(), WM_USER, 1, 2);
/// MSG message;
/// while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
///     DispatchMessageA(&message);
/// }
/// @endcode
MARLIN_API int PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Has a window handle a message at once and returns the window's result. Only the thread that
/// made the window may send to it: from another thread, and without such a window, nothing is
/// sent and the result is 0.
MARLIN_API LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Takes (`PM_REMOVE`) or copies (`PM_NOREMOVE`) the oldest message of the calling thread's queue
/// that is for `window` (null: any) and numbered `first` to `last` (0 and 0: any). Returns 1; 0
/// when there is none, and `message` keeps its value.
MARLIN_API int PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);

/// Waits for such a message and takes it. Returns 1; -1 when `message` is null, and when `window`
/// is not of the calling thread, so that no message could come.
MARLIN_API int GetMessageA(MSG* message, HWND window, UINT first, UINT last);

namespace PLATFORM {

/// For window systems: from now on calls `wake` whenever a message is posted to a window of the
/// calling thread, on the thread that posts it. `wake` has to return at once and must not post.
MARLIN_API void WakeWhenPosted(std::function<void()> wake);
/// Has the windows of the calling thread handle the messages that wait for them, in their order.
MARLIN_API void DispatchWaiting();

}  // namespace PLATFORM

/// Has the message's window handle it, on the thread that made the window, and returns the
/// window's result; 0 on another thread and for a window that is gone.
MARLIN_API LRESULT DispatchMessageA(const MSG* message);
