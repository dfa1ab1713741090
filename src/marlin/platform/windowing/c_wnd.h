// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/message_map.h>

#include <atomic>

class CDataExchange;

/// A window: what messages are sent and posted to, a dialog, or a control of the current window
/// system. It begins without one, and thus unreachable; calls then give empty results and change
/// nothing. A window belongs to the thread that made it, on which all its messages are handled
/// and on which it is destroyed; `GetSafeHwnd` and `PostMessage` may be called from any thread
/// while the object lives. The destruction of the object ends a window that `Create` made, also
/// while it handles a message, and messages that wait for it are dropped; it lets go of a
/// control, which ends with its dialog.
class MARLIN_API CWnd {
public:
    std::atomic<HWND> m_hWnd{nullptr};

    CWnd() noexcept = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    /// The wrapper that the window is attached to, or one made up for it that lives as long as
    /// the window; null for a handle of none.
    [[nodiscard]] static CWnd* FromHandle(HWND window);

    /// The object that is attached to the window, or null. Of use on the window's thread only.
    [[nodiscard]] static CWnd* FromHandlePermanent(HWND window);

    /// The handle, or null for an object without a window.
    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_hWnd.load(); }

    /// Makes a window without a face, which only receives messages. False, and nothing changed,
    /// when there is one already.
    bool Create();
    /// Ends such a window; false when there is none. It may be created anew.
    virtual bool DestroyWindow();

    [[nodiscard]] int GetDlgCtrlID() const;
    [[nodiscard]] CWnd* GetParent() const;
    /// The control of that number in this dialog, or null.
    [[nodiscard]] CWnd* GetDlgItem(int id) const;

    /// False, and nothing changed, for a handle of no window and when either has a partner.
    bool Attach(HWND window);
    HWND Detach();
    /// Attaches to a control of a dialog, which then gets its messages first.
    bool SubclassDlgItem(UINT id, CWnd* parent);

    void GetWindowText(CString& text) const;
    void SetWindowText(const char* text);
    [[nodiscard]] bool IsWindowEnabled() const;
    void EnableWindow(bool enable = true);
    void SetFocus();
    /// Has the window drawn anew: all of it, whatever the rectangle.
    void InvalidateRect(const RECT* rect, bool erase = true);
    /// Shows a box and returns the button that closed it. Without a caption it has that of the
    /// window.
    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK);

    /// Moves values between the fields and the controls: to the controls when false. False
    /// when a control's text was refused; the fields of the controls before it are then set.
    bool UpdateData(bool saveAndValidate = true);

    /// As `PostMessageA` and `SendMessageA` to this window.
    bool PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    /// Called with each message to the window; it may destroy itself meanwhile. The default calls
    /// the handlers of the message map; what has none does nothing and gives 0.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    [[nodiscard]] static const AFX_MSGMAP* GetThisMessageMap();
    [[nodiscard]] virtual const AFX_MSGMAP* GetMessageMap() const;

    virtual void DoDataExchange(CDataExchange* exchange);
    /// Called with what a control tells its dialog, before the dialog; whether that was all.
    virtual bool OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// The default: asks the parent for help. Whether any was given.
    BOOL OnHelpInfo(HELPINFO* help);

private:
    struct Notice;

    bool Dispatch(const Notice& notice);
    bool TellChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
};

/// Whether the handle names a window.
[[nodiscard]] MARLIN_API bool IsWindow(HWND window) noexcept;
