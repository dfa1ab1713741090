// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/rect.h>
#include <marlin/platform/windowing/messages.h>

// The records that the `lParam` of some messages points to.

/// `WM_NOTIFY`: the control and what happened in it. Other notices begin with these fields.
struct NMHDR {
    HWND hwndFrom = nullptr;
    UINT idFrom = 0;
    UINT code = 0;
};

/// `WM_NOTIFY` with `LVN_KEYDOWN`: a key was pressed in a list.
struct NMLVKEYDOWN {
    NMHDR hdr;
    unsigned short wVKey = 0;
    UINT flags = 0;
};

/// `WM_HELP`: the user asked for help.
struct HELPINFO {
    UINT cbSize = sizeof(HELPINFO);
    int iContextType = 1;  // a window
    int iCtrlId = 0;
    HWND hItemHandle = nullptr;
    POINT MousePos;
};

/// `WM_DRAWITEM`: an owner-drawn control is to draw itself onto a context.
struct DRAWITEMSTRUCT {
    UINT CtlType = 0;
    UINT CtlID = 0;
    UINT itemID = 0;
    UINT itemAction = 0;
    UINT itemState = 0;
    HWND hwndItem = nullptr;
    HDC hDC = nullptr;
    RECT rcItem;
};
