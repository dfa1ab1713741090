// SPDX-License-Identifier: MIT
// Takes the windows of Qt and tells what they say of a dialog that nobody answers.
#include <marlin/contours/dialogs/edit_contour_dlg.h>
#include <marlin/qt/window_system.h>

#include <cstdio>

int main() {
    if (!MARLINSUITE::UseQtWindows()) {
        std::puts("no display");
        return 1;
    }
    auto& windows = PLATFORM::WindowSystem::Current();
    std::puts(dynamic_cast<PLATFORM::QtWindowSystem*>(&windows) ? "windows of Qt" : "others");
    return 0;
}
