// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/kernel/waiting.h>

#include <memory>

struct SECURITY_ATTRIBUTES;

namespace PLATFORM::detail {
class Worker;
}

inline constexpr int THREAD_PRIORITY_IDLE = -15;         ///< runs when no other thread wants to
inline constexpr int THREAD_PRIORITY_LOWEST = -2;        ///< gives way most
inline constexpr int THREAD_PRIORITY_BELOW_NORMAL = -1;  ///< gives way
inline constexpr int THREAD_PRIORITY_NORMAL = 0;         ///< as the other threads

inline constexpr unsigned long CREATE_SUSPENDED = 4;  ///< flag: waits to be resumed
inline constexpr unsigned long STILL_ACTIVE = 259;    ///< the exit code before the end

/// The function that a worker runs; its result is the thread's exit code, 1 if the thread is
/// cancelled (`pthread_exit`). It must not throw.
using AFX_THREADPROC = unsigned int (*)(void*);

/// A worker thread. It deletes itself when it has ended, unless `m_bAutoDelete` is cleared while
/// the worker is suspended: then it belongs to whoever cleared it, and deleting it waits for the
/// worker's end, where a worker that was never resumed ends without running. Deleting it closes
/// its handle.
class MARLIN_API CWinThread {
public:
    HANDLE m_hThread = nullptr;  ///< names the worker; valid while this object lives
    bool m_bAutoDelete = true;   ///< whether the object deletes itself

    /// `AfxBeginThread` makes them.
    explicit CWinThread(std::shared_ptr<PLATFORM::detail::Worker> worker);
    CWinThread(const CWinThread&) = delete;
    CWinThread& operator=(const CWinThread&) = delete;
    ~CWinThread();

private:
    std::shared_ptr<PLATFORM::detail::Worker> m_Worker;
};

/// Makes a worker that runs `procedure` with `parameter`, at once or, with `CREATE_SUSPENDED`,
/// once resumed. Below-normal priorities give way to the process's other threads; those above
/// normal, the stack's size (0: the default) and security attributes have no meaning here. Null
/// when the system has no further thread.
MARLIN_API CWinThread* AfxBeginThread(AFX_THREADPROC procedure, void* parameter,
                                      int priority = THREAD_PRIORITY_NORMAL,
                                      unsigned int stackSize = 0, unsigned long flags = 0,
                                      SECURITY_ATTRIBUTES* attributes = nullptr);

/// The worker that the calling thread is, or null.
[[nodiscard]] MARLIN_API CWinThread* AfxGetThread() noexcept;

/// Lets a suspended worker run. Returns 1 if it was suspended, 0 if not, 0xFFFFFFFF for a handle
/// that names no worker.
MARLIN_API unsigned long ResumeThread(HANDLE handle);

/// The exit code, or `STILL_ACTIVE` before the worker's end. Returns 1, or 0, and leaves `code`,
/// for a handle that names no worker.
MARLIN_API int GetExitCodeThread(HANDLE handle, unsigned long* code);
