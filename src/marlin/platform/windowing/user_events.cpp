// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>

#include <array>
#include <string>
#include <utility>

namespace PLATFORM {

using detail::WindowTable;

namespace {

constexpr int longestCell = 256;

// The keys that were held with the one being handled.
thread_local HeldKeys heldNow;

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

bool SendKeyDown(HWND control, int key, const HeldKeys& held) {
    const HeldKeys before = std::exchange(heldNow, held);
    const MSG message = {control, WM_KEYDOWN, static_cast<WPARAM>(key), 0};
    bool isUsed = false;
    // Not the dialog's parent, which a modal dialog keeps from the user.
    for (const HWND window : {control, WindowTable::Get().Parent(control)}) {
        CWnd* const asked = CWnd::FromHandle(window);
        isUsed = isUsed || (asked && asked->PreTranslateMessage(&message) != 0);
    }
    heldNow = before;
    return isUsed;
}

void SendContextMenu(HWND control, POINT place) {
    const LPARAM packed = (place.x & 0xFFFF) | (place.y & 0xFFFF) << 16;
    SendMessageA(WindowTable::Get().Parent(control), WM_CONTEXTMENU,
                 reinterpret_cast<WPARAM>(control), packed);
}

RowCell AskCell(HWND list, int row, int column) {
    std::array<char, longestCell> text = {};
    NMLVDISPINFOA asked = {HeaderOf(list, LVN_GETDISPINFO),
                           {row, column, text.data(), longestCell, -1}};
    SendToParent(list, WM_NOTIFY, asked.hdr.idFrom, &asked);
    return {CString(text.data()), asked.item.iImage};
}

CString AskTip(HWND list, int row) {
    std::array<char, longestCell> text = {};
    NMLVGETINFOTIPA asked = {HeaderOf(list, LVN_GETINFOTIP), text.data(), longestCell, row};
    SendToParent(list, WM_NOTIFY, asked.hdr.idFrom, &asked);
    return CString(text.data());
}

void SendLabel(HWND list, int row, const CString& text) {
    std::string typed(text.View());
    NMLVDISPINFOA edited = {HeaderOf(list, LVN_ENDLABELEDIT),
                            {row, 0, typed.data(), static_cast<int>(typed.size()) + 1, -1}};
    SendToParent(list, WM_NOTIFY, edited.hdr.idFrom, &edited);
}

RECT SendDrawCell(HWND list, int row, int column, HDC dc, const RECT& cell) {
    NMLVCUSTOMDRAW draw = {HeaderOf(list, NM_CUSTOMDRAW), dc, cell, row, column, cell};
    SendToParent(list, WM_NOTIFY, draw.hdr.idFrom, &draw);
    return draw.rcText;
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

short GetKeyState(int key) {
    const bool isHeld =
        key == VK_CONTROL ? PLATFORM::heldNow.Control : key == VK_SHIFT && PLATFORM::heldNow.Shift;
    return isHeld ? -1 : 0;
}
