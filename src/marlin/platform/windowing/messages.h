// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstdint>

/// Names a window until it is destroyed; null names none. Its value means nothing and is never
/// given twice.
using HWND = struct HWND__*;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

/// The first message number that is an application's own.
inline constexpr unsigned int WM_USER = 0x0400;

inline constexpr unsigned int PM_NOREMOVE = 0;
inline constexpr unsigned int PM_REMOVE = 1;

/// A message to a window, with two parameters whose meaning is the message's.
struct MSG {
    HWND hwnd = nullptr;
    unsigned int message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

/// Puts a message at the end of the queue of the thread that made the window, and returns at
/// once. May be called from any thread. Returns 1, or 0 when there is no such window.
MARLIN_API int PostMessageA(HWND window, unsigned int message, WPARAM wParam, LPARAM lParam);

/// Lets a window handle a message at once and gives its result. Only the thread that made the
/// window may send to it; from another one, or to no window, nothing is sent and the result is 0.
MARLIN_API LRESULT SendMessageA(HWND window, unsigned int message, WPARAM wParam, LPARAM lParam);

/// Takes (`PM_REMOVE`) or copies (`PM_NOREMOVE`) the oldest message of the calling thread's queue
/// that is for `window` (null: any) and numbered `first` to `last` (0 and 0: any). Returns 1, or
/// 0, and leaves `message`, when there is none.
MARLIN_API int PeekMessageA(MSG* message, HWND window, unsigned int first, unsigned int last,
                            unsigned int remove);

/// Waits for such a message and takes it. Returns 1, or -1 when `message` is null or when
/// `window` is not one of the calling thread, for which none could come.
MARLIN_API int GetMessageA(MSG* message, HWND window, unsigned int first, unsigned int last);

/// Lets the message's window handle it, on the thread that made the window, and gives the
/// window's result; 0 on another thread and for a window that is gone.
MARLIN_API LRESULT DispatchMessageA(const MSG* message);
