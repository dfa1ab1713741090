// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/kernel/waiting.h>
#include <marlin/runtime/thread_object.h>

#include <condition_variable>
#include <exception>
#include <list>
#include <mutex>
#include <string>

class CWinThread;
class CWnd;

/// Runs one work object at a time on a worker of below-normal priority. The worker owns a named
/// mutex during its run, so that others can wait for the end; at the end the caller window, if
/// there is one, is posted the message `EndMessage`. All operations may be called from any
/// thread; the work itself must not destroy its `Thread`. Work object and caller window are not
/// owned: the object lives until its run has ended, the window until it is no longer set here.
/// @code
/// struct Work : ThreadObject {
///     int Sum = 0;
///     int Execute(const bool&) override { return ++Sum < 10 ? 1 : 0; }
/// } work;
/// Thread thread;
/// const bool isStarted = thread.Start(&work);
/// assert(isStarted);
/// thread.Wait();
/// assert(thread.ExitCode() == 0 && work.Sum == 10);
/// @endcode
class MARLIN_API Thread {
public:
    /// WM_USER + 1005, posted with both parameters 0.
    static constexpr unsigned int EndMessage = 2029;

    Thread();
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;
    /// Asks the worker to stop and waits for every worker that it started, forgotten ones too.
    ~Thread();

    [[nodiscard]] bool KeepRunning() const noexcept {
        return ThreadObject::ShallGoOn(m_KeepRunning);
    }
    /// True while a worker is recorded.
    [[nodiscard]] bool IsRunning() const;
    /// The exit code of the last completed run: 0 when the work returned 0; 1 when it returned 2,
    /// threw, or was stopped, before its first step for instance. 0 before the first run.
    [[nodiscard]] unsigned int ExitCode() const;
    /// What the work of the last completed run threw, for `std::rethrow_exception`; null when it
    /// threw nothing.
    [[nodiscard]] std::exception_ptr Exception() const;
    /// Waits until no worker of this object runs, forgotten ones included, at most so many
    /// milliseconds (32 bits). False when the time ran out, and at once on such a worker.
    bool Wait(unsigned long milliseconds = INFINITE) const;
    /// "Thread[" + this object's address in upper-case hexadecimal digits + "]".
    [[nodiscard]] const std::string& MutexName() const noexcept { return m_MutexName; }

    /// Sets the window that ends are posted to; null for none. Once it returns, the former window
    /// is not used any more.
    void SetCaller(CWnd* caller);

    /// Starts a run, and returns when its worker has tried to take the mutex: whoever then waits
    /// for the mutex waits for the run. False, and nothing started, for null, while an object is
    /// recorded, and when the system gives no worker; the object then stays recorded until
    /// `HandleEndThread`.
    ///
    /// A worker that finds its mutex owned by another party ends at once, posts nothing, and stays
    /// recorded until `HandleEndThread`.
    bool Start(ThreadObject* object);

    /// Asks the run to end after its current step, and forgotten workers too; does not wait. A
    /// later start does not take it back for them.
    void Stop() noexcept;

    /// Forgets the worker and the work object and posts `EndMessage`, for a run that did not end by
    /// itself. The exit code stays.
    void HandleEndThread();

private:
    // A worker that has not ended, and its work. It deletes itself.
    struct Run {
        CWinThread* Worker;
        ThreadObject* Object;
        bool* HasTried;           // to take the mutex; for the start that waits for it
        bool KeepRunning = true;  // accessed through atomic references alone
    };
    using Runs = std::list<Run>;

    static unsigned int ThreadProc(void* thread);

    [[nodiscard]] bool BeginWorker(bool& hasTried);
    Runs::iterator NoteTrial(bool isOwner);
    static void Execute(const Run& run, int& result);
    void EndRun(Runs::iterator run, int result, std::exception_ptr exception);
    void PostEnd() const;

    CWinThread* m_Worker = nullptr;  // compared alone: it may have ended
    mutable std::mutex m_Lock;       // guards the fields, but for names and handles
    mutable std::condition_variable m_Changed;
    ThreadObject* m_Object = nullptr;
    std::string m_MutexName;
    HANDLE m_Mutex = nullptr;
    bool m_KeepRunning = false;  // accessed through atomic references alone
    unsigned int m_ExitCode = 0;
    std::exception_ptr m_Exception;
    CWnd* m_Caller = nullptr;
    Runs m_Runs;
};
