// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/message_records.h>

namespace PLATFORM {

/// The keys that change the meaning of another while they are held.
struct HeldKeys {
    bool Shift = false;
    bool Control = false;
};

/// What a cell of a list shows.
struct RowCell {
    CString Text;
    int Image = -1;  ///< -1 for none.
};

// A window system calls these when the user does something: each sends the dialog the message
// that the framework has for it. They run on the thread of the dialog and return once the dialog
// has handled the message, by which time it may have ended.

/// The user closes the dialog by its frame or by Escape.
MARLIN_API void SendClose(HWND dialog);
/// The user asks for help in the dialog.
MARLIN_API void SendHelp(HWND dialog);
/// Something happened in a control that is reported by `WM_COMMAND`, such as `BN_CLICKED`.
MARLIN_API void SendCommand(HWND control, UINT code);
/// Something happened in a control that is reported by `WM_NOTIFY`, such as `NM_CLICK`.
MARLIN_API void SendNotice(HWND control, UINT code);
/// The user pressed a key, one of the VK_ numbers, in a list. True when the dialog made use of
/// it, so that the list should not.
[[nodiscard]] MARLIN_API bool SendKey(HWND list, int key);
/// The user pressed a key in a control, `held` with Shift or Control. True when the control's own
/// class or the dialog made use of it, so that the control should not.
[[nodiscard]] MARLIN_API bool SendKeyDown(HWND control, int key, const HeldKeys& held);
/// The user asks for the menu of a control, at a place on the screen.
MARLIN_API void SendContextMenu(HWND control, POINT place);
/// What a cell of a list shows.
[[nodiscard]] MARLIN_API RowCell AskCell(HWND list, int row, int column);
/// What is told about a row to who asks, and to who cannot see it.
[[nodiscard]] MARLIN_API CString AskTip(HWND list, int row);
/// The user typed another text into column 0 of a row.
MARLIN_API void SendLabel(HWND list, int row, const CString& text);
/// Has the dialog draw on a cell, whose background is on the context; returns the place that is
/// left for its text.
[[nodiscard]] MARLIN_API RECT SendDrawCell(HWND list, int row, int column, HDC dc,
                                           const RECT& cell);
/// An owner-drawn button has to be drawn: `action` is of the ODA_ numbers, `face` the button's
/// rectangle on the context.
MARLIN_API void SendDraw(HWND button, UINT action, HDC dc, const RECT& face);

}  // namespace PLATFORM
