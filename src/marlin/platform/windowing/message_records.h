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

/// A cell of a list, and what it shows.
struct LVITEMA {
    int iItem = 0;            ///< The row.
    int iSubItem = 0;         ///< The column.
    char* pszText = nullptr;  ///< A text of at most `cchTextMax` bytes, its null included.
    int cchTextMax = 0;
    int iImage = -1;  ///< The index of the image in column 0; -1 for none.
};

/// `WM_NOTIFY` with `LVN_GETDISPINFO`: a list shows a cell, and the dialog says what is in it. With
/// `LVN_ENDLABELEDIT`: the user typed another text into column 0 of a row.
struct NMLVDISPINFOA {
    NMHDR hdr;
    LVITEMA item;
};

/// `WM_NOTIFY` with `LVN_GETINFOTIP`: the dialog says what is to be told about a row.
struct NMLVGETINFOTIPA {
    NMHDR hdr;
    char* pszText = nullptr;  ///< As in `LVITEMA`.
    int cchTextMax = 0;
    int iItem = 0;
};

/// `WM_NOTIFY` with `NM_CUSTOMDRAW`: a list draws a cell, whose background is on the context. The
/// dialog may draw on it, and give the cell's text another place.
struct NMLVCUSTOMDRAW {
    NMHDR hdr;
    HDC hdc = nullptr;
    RECT rc;  ///< The cell on the context.
    int iItem = 0;
    int iSubItem = 0;
    RECT rcText;
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
