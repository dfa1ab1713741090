// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// Names a kernel object (a mutex or a worker) until it is closed; null names none. Its value
/// means nothing and is never given twice, so that a closed or invented handle is recognised.
using HANDLE = void*;

inline constexpr unsigned long INFINITE = 0xFFFFFFFF;  ///< a time in milliseconds that never ends

inline constexpr unsigned long WAIT_OBJECT_0 = 0;         ///< waited for, and a mutex taken
inline constexpr unsigned long WAIT_ABANDONED = 0x80;     ///< a mutex taken whose owner is gone
inline constexpr unsigned long WAIT_TIMEOUT = 258;        ///< the time ran out
inline constexpr unsigned long WAIT_FAILED = 0xFFFFFFFF;  ///< there is nothing to wait for

/// Waits for an object, at most so many milliseconds; with 0 it returns at once, with `INFINITE`
/// it waits for ever. A worker is waited for until it has ended. A mutex is taken: see
/// `CreateMutexA`. Returns `WAIT_OBJECT_0`; `WAIT_ABANDONED` when a mutex was taken whose owner's
/// thread ended without releasing it; `WAIT_TIMEOUT`, and nothing taken, when the time ran out;
/// `WAIT_FAILED` for a handle that names nothing. Of the milliseconds the low 32 bits count.
MARLIN_API unsigned long WaitForSingleObject(HANDLE handle, unsigned long milliseconds);

/// Gives the handle up. The object lives on while another handle names it or a thread waits for
/// it. Returns 1, or 0 for a handle that names nothing.
MARLIN_API int CloseHandle(HANDLE handle);
