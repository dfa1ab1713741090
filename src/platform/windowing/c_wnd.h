// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/export.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/message_map.h>

class CDataExchange;

/// Wraps a window of the current window system: a dialog or a control. Made without one; calls
/// then give empty results and change nothing. The window belongs to its dialog, which ends it;
/// a wrapper that is destroyed first lets go of it. For the thread that made the window.
class MARLIN_API CWnd {
public:
    HWND m_hWnd = nullptr;

    CWnd() noexcept = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    /// The wrapper that the window is attached to, or one made up for it that lives as long as
    /// the window; null for a handle of none.
    [[nodiscard]] static CWnd* FromHandle(HWND window);

    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_hWnd; }
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

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    /// Called with each message to the window.
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
