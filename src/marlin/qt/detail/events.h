// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/qt/window_system.h>

namespace PLATFORM {

/// The messages of a window system, where its widgets can send them.
struct QtWindowSystem::Events {
    static void Close(HWND dialog);
    static void Help(HWND dialog) { DeliverHelp(dialog); }
    static void Command(HWND control, UINT code) { DeliverCommand(control, code); }
    static void Notice(HWND control, UINT code) { DeliverNotice(control, code); }
    static bool Key(HWND list, int key) { return DeliverKey(list, key); }
    static void Draw(HWND button, HDC dc, const RECT& face);
    static CString Spun(const CString& text, int steps, int lower, int upper) {
        return WindowSystem::Spun(text, steps, lower, upper);
    }
};

}  // namespace PLATFORM
