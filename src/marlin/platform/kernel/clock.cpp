// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <chrono>

namespace {

// The steady clock: the time of day jumps when somebody sets it.
unsigned long SystemMilliseconds() noexcept {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<unsigned long>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

}  // namespace

unsigned long timeGetTime() noexcept {
    const PLATFORM::detail::MillisecondClock replaced = PLATFORM::detail::ReplacedClock();
    return (replaced ? replaced() : SystemMilliseconds()) & 0xFFFFFFFFUL;
}
