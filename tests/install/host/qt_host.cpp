// SPDX-License-Identifier: MIT
// Makes the windows of Qt the current ones and prints whether dialogs use them.
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
