// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstdint>

/// A stopwatch in milliseconds on the system's wrapping clock (`timeGetTime`). Its times are
/// 32-bit, both 0 at first. A value.
/// @code
/// Timer timer;
/// timer.Start();
/// timer.Stop();
/// assert(timer.Elapse() < 60'000);
/// @endcode
class MARLIN_API Timer {
public:
    /// Milliseconds from the last `Start` to the last `Stop`, modulo 2^32, so that an interval
    /// across the clock's wrap is right. The clock is not read.
    [[nodiscard]] unsigned long Elapse() const noexcept { return m_Stop - m_Start; }

    /// Both keep the present time and return it.
    unsigned long Start() noexcept;
    unsigned long Stop() noexcept;

    void Reset() noexcept { *this = Timer(); }

private:
    std::uint32_t m_Start = 0;
    std::uint32_t m_Stop = 0;
};
