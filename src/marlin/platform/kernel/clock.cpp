// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>

#include <atomic>
#include <chrono>

namespace {

constinit std::atomic<PLATFORM::MillisecondClock> replacement{nullptr};

unsigned long SystemMilliseconds() noexcept {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<unsigned long>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

}  // namespace

unsigned long timeGetTime() noexcept {
    const PLATFORM::MillisecondClock clock = replacement.load();
    return (clock ? clock() : SystemMilliseconds()) & 0xFFFFFFFFUL;
}

namespace PLATFORM {

void SetMillisecondClock(MillisecondClock clock) noexcept {
    replacement.store(clock);
}

}  // namespace PLATFORM
