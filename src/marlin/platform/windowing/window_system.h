// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/box_requests.h>
#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/drop_down_list.h>
#include <marlin/platform/windowing/report_list.h>
#include <marlin/platform/windowing/spin_range.h>

#include <span>

namespace PLATFORM {

/// Shows the dialogs of the process: in memory at first (`HeadlessWindowSystem`), or in a host's
/// own way. Everything runs on the thread that shows the dialogs. Callers make the handles; an
/// operation does nothing, or returns an empty result, for a handle of another kind of window than
/// it is for. A window system reports what the user does through user_events.h; it does not
/// report what the program does through these operations.
class MARLIN_API WindowSystem {
public:
    /// The result of an operation that cannot show anything, for want of a display.
    static constexpr int Failed = -1;

    WindowSystem() = default;
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    virtual ~WindowSystem();

    [[nodiscard]] static WindowSystem& Current();
    /// Makes a system the current one, between dialogs, and returns the one before. It has to
    /// outlive all windows made from then on. Null brings the headless one back.
    static WindowSystem* SetCurrent(WindowSystem* system);

    /// Makes a dialog, not yet shown, with one control for each of its template's, in that order,
    /// all of which last until `DestroyDialog`. `parent` may be null.
    virtual bool CreateDialog(HWND dialog, const DialogTemplate& form,
                              std::span<const HWND> controls, HWND parent) = 0;
    /// Shows the dialog and serves the user until `EndDialog`, which may have been called before.
    /// Returns the result given there.
    virtual int RunDialog(HWND dialog) = 0;
    /// The first call counts.
    virtual void EndDialog(HWND dialog, int result) = 0;
    virtual void DestroyDialog(HWND dialog) = 0;

    /// The title of a dialog, or the text of a control ("&" before a mnemonic).
    [[nodiscard]] virtual CString Text(HWND window) const = 0;
    virtual void SetText(HWND window, const CString& text) = 0;
    [[nodiscard]] virtual bool IsEnabled(HWND window) const = 0;
    virtual void Enable(HWND control, bool enable) = 0;
    virtual void SetFocus(HWND control) = 0;
    /// The control that has a dialog's focus, or null.
    [[nodiscard]] virtual HWND Focus(HWND dialog) const = 0;
    /// Has an owner-drawn button drawn again.
    virtual void Invalidate(HWND control) = 0;

    /// What a screen reader says of a control besides its name, and a tip shows.
    virtual void Describe(HWND control, const CString& text) = 0;
    [[nodiscard]] virtual CString Description(HWND control) const = 0;

    [[nodiscard]] virtual bool IsChecked(HWND box) const = 0;
    virtual void SetChecked(HWND box, bool checked) = 0;
    virtual void SetRange(HWND spin, const SpinRange& range) = 0;
    /// The inside of a control, which lasts as long as its dialog; null for another window.
    [[nodiscard]] virtual DropDownList* FindDropDown(HWND window) const = 0;
    [[nodiscard]] virtual ReportList* FindList(HWND window) const = 0;

    /// Show a box above a window or, with null, by itself. A message box returns the number of
    /// the button that closed it; the others true when something was chosen, which is then set.
    virtual int ShowMessage(HWND parent, const MessageRequest& request) = 0;
    /// The number of the item that the user chose, 0 for none.
    virtual int ShowMenu(HWND parent, const MenuRequest& request) = 0;
    virtual bool ChooseFile(HWND parent, const FileRequest& request, CString& path) = 0;
    virtual bool ChooseColor(HWND parent, const ColorRequest& request, COLORREF& color) = 0;

    /// The text that the user cut or copied last, in any program; empty for none.
    [[nodiscard]] virtual CString ClipboardText() const = 0;
    virtual void SetClipboardText(const CString& text) = 0;
};

}  // namespace PLATFORM
