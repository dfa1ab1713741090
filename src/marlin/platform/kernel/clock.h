// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// The milliseconds of a clock that never jumps, counted from an unknown start, 0 to 2^32 - 1:
/// after about 49.7 days they begin at 0 again.
[[nodiscard]] MARLIN_API unsigned long timeGetTime() noexcept;

namespace PLATFORM {

/// A count of milliseconds; its low 32 bits are used.
using MillisecondClock = unsigned long (*)();

/// Takes the place of the system's clock behind `timeGetTime`, so that a test can choose the
/// time; null brings the system's clock back.
MARLIN_API void SetMillisecondClock(MillisecondClock clock) noexcept;

}  // namespace PLATFORM
