// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/export.h>
#include <marlin/platform/windowing/messages.h>

#include <atomic>

/// A window: what messages are sent and posted to. It begins without a handle, and thus
/// unreachable; `Create` gives it one. It belongs to the thread that made it, on which all its
/// messages are handled and on which it is destroyed; `GetSafeHwnd` and `PostMessage` may be
/// called from any thread while the object lives. Its destruction ends the window, also while it
/// handles a message; messages that wait for it are dropped.
class MARLIN_API CWnd {
public:
    CWnd() noexcept = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    /// The window of a handle, or null when there is none. Of use on the window's thread only.
    [[nodiscard]] static CWnd* FromHandlePermanent(HWND window);

    /// The handle, or null for a window without one.
    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_Window.load(); }

    /// Makes a window without a face, which only receives messages. False, and nothing changed,
    /// when it has been made already.
    bool Create();
    /// Gives the handle back; false when there is none. The object may be created anew.
    virtual bool DestroyWindow();

    /// As `PostMessageA` and `SendMessageA` to this window.
    bool PostMessage(unsigned int message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendMessage(unsigned int message, WPARAM wParam = 0, LPARAM lParam = 0);

    /// Handles a message; the window may destroy itself meanwhile. The base version does nothing
    /// and gives 0.
    virtual LRESULT WindowProc(unsigned int message, WPARAM wParam, LPARAM lParam);

private:
    bool EndWindow();

    std::atomic<HWND> m_Window{nullptr};
};
