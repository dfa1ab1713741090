// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/detail/kernel_object.h>
#include <marlin/platform/kernel/win_thread.h>

#include <exception>
#include <functional>
#include <thread>

namespace PLATFORM::detail {

/// What the call threw, or null. A thread that is cancelled in it unwinds further.
[[nodiscard]] std::exception_ptr ExceptionOf(const std::function<void()>& call);

/// The thread of a `CWinThread`, suspended at first. The running thread shares the ownership, so
/// that its end does not depend on who still knows it.
class Worker final : public KernelObject, public std::enable_shared_from_this<Worker> {
public:
    /// A suspended worker with its `CWinThread`, or none when the system has no thread for it.
    [[nodiscard]] static std::unique_ptr<CWinThread> Create(AFX_THREADPROC procedure,
                                                            void* parameter, int priority);

    Worker(AFX_THREADPROC procedure, void* parameter, int priority) noexcept
        : m_Procedure(procedure), m_Parameter(parameter), m_Priority(priority) {}

    [[nodiscard]] unsigned long Wait(unsigned long milliseconds) override;
    /// False when it was not suspended.
    bool Resume();
    [[nodiscard]] unsigned long ExitCode();

    /// Has the next worker that ends, or the end of the process, wait for the calling one. It does
    /// so before anybody may take it for ended.
    static void Retire();

    /// Waits for the end of the thread; a suspended one ends without running. A worker that
    /// calls it for itself goes on alone.
    void Finish();

private:
    enum class STATE { SUSPENDED, RESUMED, CANCELLED, ENDED };

    [[nodiscard]] bool Leave(STATE from, STATE to);
    [[nodiscard]] bool IsToRun();
    void Run(CWinThread* thread);
    void End(unsigned long code);

    AFX_THREADPROC m_Procedure;
    void* m_Parameter;
    int m_Priority;
    STATE m_State = STATE::SUSPENDED;
    unsigned long m_ExitCode = STILL_ACTIVE;
    std::thread m_Thread;
};

}  // namespace PLATFORM::detail
