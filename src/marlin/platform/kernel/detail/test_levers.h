// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// Changes that tests make to the platform, to meet conditions that they could not bring about
/// otherwise. Exported for the tests alone; the header is not installed. Any thread may call them.
namespace PLATFORM::detail {

inline constexpr unsigned int NoWorkerLimit = 0xFFFFFFFF;

/// How many workers may exist at a time in the process, to see what happens when none can be
/// made. Workers that exist go on.
MARLIN_API void SetWorkerLimit(unsigned int most) noexcept;
[[nodiscard]] unsigned int WorkerLimit() noexcept;

/// While held, resumed workers do not begin; those that have begun go on. A test acts so between
/// the start of a worker and its first step.
MARLIN_API void HoldWorkers(bool hold) noexcept;
/// Returns when workers are not held.
void AwaitRelease() noexcept;

/// A count of milliseconds; its low 32 bits are used.
using MillisecondClock = unsigned long (*)();

/// Takes the place of the system's clock for `timeGetTime`; null brings the system's clock back.
MARLIN_API void SetMillisecondClock(MillisecondClock clock) noexcept;
[[nodiscard]] MillisecondClock ReplacedClock() noexcept;

/// Off, new files have names from the start, as on a file system that has no unnamed ones.
MARLIN_API void AllowUnnamedFiles(bool allow) noexcept;
[[nodiscard]] bool AreUnnamedFilesAllowed() noexcept;

/// The platform that `GetVersionExA` reports: 2 until it is set.
MARLIN_API void SetPlatformId(unsigned int id) noexcept;
[[nodiscard]] unsigned int PlatformId() noexcept;

}  // namespace PLATFORM::detail
