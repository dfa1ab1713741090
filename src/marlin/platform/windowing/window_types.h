// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/drawing/rect.h>
#include <marlin/platform/windowing/messages.h>

using UINT = unsigned int;

/// What every notification of a control begins with.
struct NMHDR {
    HWND hwndFrom = nullptr;
    UINT idFrom = 0;
    UINT code = 0;
};

/// A key that was pressed in a list.
struct NMLVKEYDOWN {
    NMHDR hdr;
    unsigned short wVKey = 0;
    UINT flags = 0;
};

/// A request for help.
struct HELPINFO {
    UINT cbSize = sizeof(HELPINFO);
    int iContextType = 1;  // a window
    int iCtrlId = 0;
    HWND hItemHandle = nullptr;
    POINT MousePos;
};

/// What an owner-drawn control is given to draw itself.
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
