// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/messages.h>

// The framework's numbers that dialogs and their controls use.

/// Messages.
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_DRAWITEM = 0x002B;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_HELP = 0x0053;
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT CB_ADDSTRING = 0x0143;

/// Codes of a control in `WM_COMMAND` (BN_) and in `WM_NOTIFY` (NM_, LVN_).
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT NM_CLICK = 0U - 2U;
inline constexpr UINT NM_DBLCLK = 0U - 3U;
inline constexpr UINT NM_CUSTOMDRAW = 0U - 12U;
inline constexpr UINT LVN_ITEMCHANGED = 0U - 101U;
inline constexpr UINT LVN_ENDLABELEDIT = 0U - 106U;
inline constexpr UINT LVN_GETDISPINFO = 0U - 150U;
inline constexpr UINT LVN_KEYDOWN = 0U - 155U;
inline constexpr UINT LVN_GETINFOTIP = 0U - 157U;

/// Buttons that close a dialog or a message box.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

/// Buttons and icon of a message box.
inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_YESNOCANCEL = 0x03;
inline constexpr UINT MB_YESNO = 0x04;
inline constexpr UINT MB_ICONERROR = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;

/// Keys
/// (letters and digits have the numbers of their capitals in ASCII).
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_INSERT = 0x2D;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_F1 = 0x70;
inline constexpr int VK_F2 = 0x71;

/// The type of a `DRAWITEMSTRUCT` and what it asks for.
inline constexpr UINT ODT_BUTTON = 4;
inline constexpr UINT ODA_DRAWENTIRE = 1;
inline constexpr UINT ODA_FOCUS = 4;
