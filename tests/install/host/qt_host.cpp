// SPDX-License-Identifier: MIT
// Takes the windows of Qt and tells whether they are the ones that dialogs are shown in.
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
