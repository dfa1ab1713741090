// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/number_form.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/headless_window_system.h>
#include <marlin/platform/windowing/window_system.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace PLATFORM {

namespace {

constinit WindowSystem* current = nullptr;

LPARAM Address(void* record) noexcept {
    return reinterpret_cast<LPARAM>(record);
}

NMHDR HeaderOf(HWND control, UINT code) {
    return {control, static_cast<UINT>(WindowTable::Get().Id(control)), code};
}

}  // namespace

WindowSystem::~WindowSystem() {
    if (current == this) {
        current = nullptr;
    }
}

WindowSystem& WindowSystem::Current() {
    static HeadlessWindowSystem headless;
    return current ? *current : headless;
}

WindowSystem* WindowSystem::SetCurrent(WindowSystem* system) {
    return std::exchange(current, system);
}

LRESULT WindowSystem::Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(window, message, wParam, lParam);
}

void WindowSystem::DeliverCommand(HWND control, UINT code) {
    WindowTable& windows = WindowTable::Get();
    const WPARAM id = static_cast<WPARAM>(windows.Id(control)) & 0xFFFFU;
    Deliver(windows.Parent(control), WM_COMMAND, id | (WPARAM{code} << 16U), Address(control));
}

void WindowSystem::DeliverNotice(HWND control, UINT code) {
    NMHDR header = HeaderOf(control, code);
    Deliver(WindowTable::Get().Parent(control), WM_NOTIFY, header.idFrom, Address(&header));
}

bool WindowSystem::DeliverKey(HWND list, int key) {
    NMLVKEYDOWN notice = {HeaderOf(list, LVN_KEYDOWN), static_cast<unsigned short>(key), 0};
    const HWND dialog = WindowTable::Get().Parent(list);
    return Deliver(dialog, WM_NOTIFY, notice.hdr.idFrom, Address(&notice)) != 0;
}

void WindowSystem::DeliverHelp(HWND dialog) {
    HELPINFO help;
    help.hItemHandle = dialog;
    Deliver(dialog, WM_HELP, 0, Address(&help));
}

void WindowSystem::DeliverDraw(HWND button, UINT action, HDC dc, const RECT& face) {
    WindowTable& windows = WindowTable::Get();
    DRAWITEMSTRUCT draw;
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = static_cast<UINT>(windows.Id(button));
    draw.itemAction = action;
    draw.hwndItem = button;
    draw.hDC = dc;
    draw.rcItem = face;
    Deliver(windows.Parent(button), WM_DRAWITEM, draw.CtlID, Address(&draw));
}

CString WindowSystem::Spun(const CString& text, int steps, int lower, int upper) {
    double value = lower;
    static_cast<void>(ParseReal(text.View(), value));
    const double moved = std::trunc(value) + steps;
    CString result;
    result.Format("%i", static_cast<int>(std::clamp<double>(moved, lower, upper)));
    return result;
}

CString WindowSystem::WithExtension(const CString& path, const CString& extension) {
    const CString name = path.Mid(path.ReverseFind('/') + 1);
    const bool isComplete = extension.IsEmpty() || name.IsEmpty() || name.ReverseFind('.') > 0;
    return isComplete ? path : path + '.' + extension;
}

}  // namespace PLATFORM
