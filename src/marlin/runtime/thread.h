// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/kernel/waiting.h>
#include <marlin/runtime/thread_object.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

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
/// while (thread.IsRunning()) {
/// }
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
    /// "Thread[" + this object's address in upper-case hexadecimal digits + "]".
    [[nodiscard]] const std::string& MutexName() const noexcept { return m_MutexName; }

    /// Sets the window that ends are posted to; null for none. Once it returns, the former window
    /// is not used any more.
    void SetCaller(CWnd* caller);

    /// Starts a run. False, and nothing started, for null, while an object is recorded, and when
    /// the system gives no worker; the object then stays recorded until `HandleEndThread`.
    ///
    /// A worker that finds its mutex owned by another party ends at once, posts nothing, and stays
    /// recorded until `HandleEndThread`.
    bool Start(ThreadObject* object);

    /// Asks the run to end after its current step; does not wait.
    void Stop() noexcept;

    /// Forgets the worker and the work object and posts `EndMessage`, for a run that did not end by
    /// itself. The exit code stays.
    void HandleEndThread();

private:
    // A worker and its work, kept until the worker has ended.
    struct Run {
        std::unique_ptr<CWinThread> Worker;
        ThreadObject* Object;
    };

    static unsigned int ThreadProc(void* thread);

    [[nodiscard]] bool BeginWorker();
    [[nodiscard]] std::vector<Run> TakeEndedRuns();
    [[nodiscard]] ThreadObject* ObjectOf(const CWinThread* worker) const;
    [[nodiscard]] int Execute(ThreadObject& object) const;
    unsigned int EndRun(const CWinThread* worker, int result);
    void PostEnd() const;

    CWinThread* m_Worker = nullptr;
    mutable std::mutex m_Lock;  // guards the fields below; held for all of Start
    ThreadObject* m_Object = nullptr;
    std::string m_MutexName;
    HANDLE m_Mutex = nullptr;
    bool m_KeepRunning = false;  // accessed through atomic references alone
    unsigned int m_ExitCode = 0;
    CWnd* m_Caller = nullptr;
    std::vector<Run> m_Runs;
};
