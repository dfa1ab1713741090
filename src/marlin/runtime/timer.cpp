// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>
#include <marlin/runtime/timer.h>

unsigned long Timer::Start() noexcept {
    m_Start = static_cast<std::uint32_t>(timeGetTime());
    return m_Start;
}

unsigned long Timer::Stop() noexcept {
    m_Stop = static_cast<std::uint32_t>(timeGetTime());
    return m_Stop;
}
