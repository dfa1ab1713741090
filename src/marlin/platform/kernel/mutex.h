// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/kernel/waiting.h>

struct SECURITY_ATTRIBUTES;

/// The right to wait for a mutex.
inline constexpr unsigned long SYNCHRONIZE = 0x00100000;

/// Makes a mutex, or opens the one of that name: within the process a name, case included, names
/// one mutex as long as a handle to it is open. A null or empty name makes a mutex of its own. Free
/// mutexes are taken with `WaitForSingleObject` and are then owned by the calling thread, which
/// takes its own mutex again without waiting; it is free once released as often as it was taken, or
/// when the owner's thread ends. A new mutex is owned by the calling thread when `initialOwner` is
/// not 0. Security attributes have no meaning here.
[[nodiscard]] MARLIN_API HANDLE CreateMutexA(const SECURITY_ATTRIBUTES* attributes,
                                             int initialOwner, const char* name);

/// A handle to the mutex of that name, or null when there is none. Every access is granted.
[[nodiscard]] MARLIN_API HANDLE OpenMutexA(unsigned long access, int inherit, const char* name);

/// Undoes one taking. Returns 1, or 0, and changes nothing, for a mutex that the calling thread
/// does not own and for a handle that names no mutex.
MARLIN_API int ReleaseMutex(HANDLE handle);
