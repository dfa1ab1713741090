// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/message_records.h>

namespace PLATFORM {

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
/// An owner-drawn button has to be drawn: `action` is of the ODA_ numbers, `face` the button's
/// rectangle on the context.
MARLIN_API void SendDraw(HWND button, UINT action, HDC dc, const RECT& face);

}  // namespace PLATFORM
