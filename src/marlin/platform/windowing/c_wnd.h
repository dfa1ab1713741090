// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/message_map.h>

#include <atomic>

class CDataExchange;

/// A window: a receiver of messages, a dialog, or a control of the current window system. An
/// object starts without a window: calls then return empty results and change nothing. A window
/// belongs to the thread that made it, on which it handles its messages and is destroyed;
/// `GetSafeHwnd` and `PostMessage` may be called from any thread while the object lives. When the
/// object is destroyed, a window that `Create` made ends with it, also while it handles a
/// message, and messages that wait for it are dropped; a control stays and ends with its dialog.
/// @code
/// struct Receiver : CWnd {
///     LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
///         return message == WM_USER ? 7 : CWnd::WindowProc(message, wParam, lParam);
///     }
/// };
/// Receiver receiver;
/// receiver.Create();
/// const LRESULT answer = receiver.SendMessage(WM_USER);
/// assert(answer == 7);
/// @endcode
class MARLIN_API CWnd {
public:
    std::atomic<HWND> m_hWnd{nullptr};

    CWnd() noexcept = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    /// The object that is attached to the window, or one made up for it that lives as long as
    /// the window; null for a handle of none.
    [[nodiscard]] static CWnd* FromHandle(HWND window);

    /// The handle, or null for an object without a window.
    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_hWnd.load(); }

    /// Makes a window that is never shown and only receives messages. False, and nothing changed,
    /// when the object has a window already.
    bool Create();
    /// Ends such a window; false when there is none. `Create` may follow.
    virtual bool DestroyWindow();

    [[nodiscard]] CWnd* GetParent() const;
    /// The control of that number in this dialog, or null.
    [[nodiscard]] CWnd* GetDlgItem(int id) const;

    /// False, and nothing changed, for a handle of no window, and when the window has an object or
    /// the object a window.
    bool Attach(HWND window);
    HWND Detach();
    /// Attaches to a control of a dialog, whose messages then go to this object first.
    bool SubclassDlgItem(UINT id, CWnd* parent);

    void GetWindowText(CString& text) const;
    void SetWindowText(const char* text);
    [[nodiscard]] bool IsWindowEnabled() const;
    void EnableWindow(bool enable = true);
    void SetFocus();
    /// Has all of the window drawn again, for any rectangle.
    void InvalidateRect(const RECT* rect, bool erase = true);
    /// Shows a box and returns the button that closed it. Without a caption it has the window's.
    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK);

    /// Copies the values of the controls to the fields, or of the fields to the controls for
    /// false. Returns false when a control's text was refused; the fields of the controls before
    /// it are then set.
    bool UpdateData(bool saveAndValidate = true);

    /// As `PostMessageA` and `SendMessageA` to this window.
    bool PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    /// Asked before a key goes to a control, first in the control and then in its dialog, with
    /// `WM_KEYDOWN` and the key in `wParam`. True when the key is used up; the default is false.
    virtual BOOL PreTranslateMessage(const MSG* message);

    /// Called with each message to the window; it may destroy the object. The default calls the
    /// handler in the message map; a message without one has the result 0.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    [[nodiscard]] static const AFX_MSGMAP* GetThisMessageMap();
    [[nodiscard]] virtual const AFX_MSGMAP* GetMessageMap() const;

    /// Called by `UpdateData`; the place for the `DDX_` functions.
    virtual void DoDataExchange(CDataExchange* exchange);
    /// Called in a control with a message about it, before its dialog handles that. True when the
    /// dialog should not.
    virtual bool OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// The default asks the parent for help. True when there was help.
    BOOL OnHelpInfo(HELPINFO* help);

private:
    bool CallOwnHandler(UINT message, WPARAM wParam, LPARAM lParam, bool isReflected,
                        LRESULT* result);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
};

/// True for the handle of a window that has not ended.
[[nodiscard]] MARLIN_API bool IsWindow(HWND window) noexcept;
