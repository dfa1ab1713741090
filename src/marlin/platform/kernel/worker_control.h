// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

namespace PLATFORM {

inline constexpr unsigned int NoWorkerLimit = 0xFFFFFFFF;

/// How many workers may exist at a time in the process: a host bounds its threads with it, a
/// test sees what happens when none can be made. Workers that exist go on.
MARLIN_API void SetWorkerLimit(unsigned int most) noexcept;

/// While held, resumed workers do not begin; those that have begun go on. So a test can act
/// between the start of a worker and its first step.
MARLIN_API void HoldWorkers(bool hold) noexcept;

}  // namespace PLATFORM
