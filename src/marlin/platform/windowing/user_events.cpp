// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>

namespace PLATFORM {

using detail::WindowTable;

namespace {

LPARAM Address(void* record) noexcept {
    return reinterpret_cast<LPARAM>(record);
}

LRESULT SendToParent(HWND control, UINT message, WPARAM wParam, void* record) {
    return SendMessageA(WindowTable::Get().Parent(control), message, wParam, Address(record));
}

NMHDR HeaderOf(HWND control, UINT code) {
    return {control, static_cast<UINT>(WindowTable::Get().Id(control)), code};
}

}  // namespace

void SendClose(HWND dialog) {
    SendMessageA(dialog, WM_CLOSE, 0, 0);
}

void SendHelp(HWND dialog) {
    HELPINFO help;
    help.hItemHandle = dialog;
    SendMessageA(dialog, WM_HELP, 0, Address(&help));
}

void SendCommand(HWND control, UINT code) {
    // The framework packs the control's number and the code into one word, 16 bits each.
    const WPARAM id = static_cast<WPARAM>(WindowTable::Get().Id(control)) & 0xFFFFU;
    SendToParent(control, WM_COMMAND, id | (WPARAM{code} << 16U), control);
}

void SendNotice(HWND control, UINT code) {
    NMHDR header = HeaderOf(control, code);
    SendToParent(control, WM_NOTIFY, header.idFrom, &header);
}

bool SendKey(HWND list, int key) {
    NMLVKEYDOWN notice = {HeaderOf(list, LVN_KEYDOWN), static_cast<unsigned short>(key), 0};
    return SendToParent(list, WM_NOTIFY, notice.hdr.idFrom, &notice) != 0;
}

void SendDraw(HWND button, UINT action, HDC dc, const RECT& face) {
    DRAWITEMSTRUCT draw;
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = static_cast<UINT>(WindowTable::Get().Id(button));
    draw.itemAction = action;
    draw.hwndItem = button;
    draw.hDC = dc;
    draw.rcItem = face;
    SendToParent(button, WM_DRAWITEM, draw.CtlID, &draw);
}

}  // namespace PLATFORM
