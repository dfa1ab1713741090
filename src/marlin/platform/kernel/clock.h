// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// The milliseconds of a clock that never jumps, counted from an unknown start, 0 to 2^32 - 1:
/// after about 49.7 days they begin at 0 again.
[[nodiscard]] MARLIN_API unsigned long timeGetTime() noexcept;
