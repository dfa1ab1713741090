// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/headless_window_system.h>
#include <marlin/platform/windowing/window_system.h>

#include <utility>

namespace PLATFORM {

namespace {

constinit WindowSystem* current = nullptr;

}  // namespace

WindowSystem::~WindowSystem() {
    // A test or a host may forget to put the headless one back.
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

}  // namespace PLATFORM
