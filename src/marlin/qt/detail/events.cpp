// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/window_messages.h>
#include <marlin/qt/detail/events.h>

namespace PLATFORM {

void QtWindowSystem::Events::Close(HWND dialog) {
    Deliver(dialog, WM_CLOSE, 0, 0);
}

void QtWindowSystem::Events::Draw(HWND button, HDC dc, const RECT& face) {
    DeliverDraw(button, ODA_DRAWENTIRE, dc, face);
}

}  // namespace PLATFORM
