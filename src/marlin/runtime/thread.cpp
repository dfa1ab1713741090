// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/worker.h>
#include <marlin/platform/kernel/mutex.h>
#include <marlin/platform/kernel/win_thread.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/runtime/thread.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <utility>

namespace {

// The worker's exit code when another party owns the mutex.
constexpr unsigned int MutexNotTaken = 0xFFFFFFFF;

std::string NameOf(const Thread* thread) {
    CString name;
    name.Format("Thread[%jX]", reinterpret_cast<std::uintmax_t>(thread));
    return std::string(name.View());
}

}  // namespace

static_assert(Thread::EndMessage == WM_USER + 1005);

Thread::Thread()
    : m_MutexName(NameOf(this)), m_Mutex(CreateMutexA(nullptr, 0, m_MutexName.c_str())) {}

Thread::~Thread() {
    Stop();
    Wait();
    CloseHandle(m_Mutex);
}

bool Thread::IsRunning() const {
    const std::lock_guard lock(m_Lock);
    return m_Worker != nullptr;
}

unsigned int Thread::ExitCode() const {
    const std::lock_guard lock(m_Lock);
    return m_ExitCode;
}

std::exception_ptr Thread::Exception() const {
    const std::lock_guard lock(m_Lock);
    return m_Exception;
}

bool Thread::Wait(unsigned long milliseconds) const {
    std::unique_lock lock(m_Lock);
    if (std::ranges::count(m_Runs, AfxGetThread(), &Run::Worker) > 0) {
        return false;  // it would wait for itself
    }
    const auto ended = [this] { return m_Runs.empty(); };
    const auto time = std::chrono::milliseconds(milliseconds & INFINITE);
    if (time.count() != INFINITE) {
        return m_Changed.wait_for(lock, time, ended);
    }
    m_Changed.wait(lock, ended);
    return true;
}

void Thread::SetCaller(CWnd* caller) {
    const std::lock_guard lock(m_Lock);
    m_Caller = caller;
}

bool Thread::Start(ThreadObject* object) {
    std::unique_lock lock(m_Lock);
    if (!object || m_Object) {
        return false;
    }
    m_Object = object;
    std::atomic_ref<bool>(m_KeepRunning).store(true);
    bool hasTried = false;
    if (!BeginWorker(hasTried)) {
        return false;
    }
    m_Changed.wait(lock, [&hasTried] { return hasTried; });
    return true;
}

// Suspended until it is recorded, so that the worker finds its entry in the list.
bool Thread::BeginWorker(bool& hasTried) {
    Run& run = m_Runs.emplace_back(Run{nullptr, m_Object, &hasTried});
    run.Worker =
        AfxBeginThread(&ThreadProc, this, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    m_Worker = run.Worker;
    if (!run.Worker) {
        m_Runs.pop_back();
        return false;
    }
    ResumeThread(run.Worker->m_hThread);
    return true;
}

// Each run has a flag of its own, so that a later start does not revive a worker that was
// forgotten.
void Thread::Stop() noexcept {
    const std::lock_guard lock(m_Lock);
    std::atomic_ref<bool>(m_KeepRunning).store(false);
    for (Run& run : m_Runs) {
        std::atomic_ref<bool>(run.KeepRunning).store(false);
    }
}

unsigned int Thread::ThreadProc(void* thread) {
    auto& self = *static_cast<Thread*>(thread);
    const bool isOwner = WaitForSingleObject(self.m_Mutex, 0) != WAIT_TIMEOUT;
    if (!isOwner) {
        PLATFORM::detail::Worker::Retire();
    }
    const Runs::iterator run = self.NoteTrial(isOwner);
    if (!isOwner) {
        return MutexNotTaken;
    }
    // Also for a worker that its work cancels.
    struct Ending {
        Thread& Self;
        Runs::iterator Run;
        int Result;
        std::exception_ptr Exception;

        ~Ending() {
            ReleaseMutex(Self.m_Mutex);
            PLATFORM::detail::Worker::Retire();
            Self.EndRun(Run, Result, std::move(Exception));
        }
    } ending{self, run, 1, nullptr};
    ending.Exception = PLATFORM::detail::ExceptionOf([&] { Execute(*run, ending.Result); });
    return ending.Result != 0 ? 1 : 0;
}

// A worker that found the mutex owned by another party ends here: it may not touch this object
// again.
Thread::Runs::iterator Thread::NoteTrial(bool isOwner) {
    const std::lock_guard lock(m_Lock);
    const auto run = std::ranges::find(m_Runs, AfxGetThread(), &Run::Worker);
    *run->HasTried = true;
    m_Changed.notify_all();
    return isOwner ? run : m_Runs.erase(run);
}

void Thread::Execute(const Run& run, int& result) {
    int latest = 1;
    while (latest != 0 && latest != 2 && ThreadObject::ShallGoOn(run.KeepRunning)) {
        latest = run.Object->Execute(run.KeepRunning);
    }
    result = latest;
}

// Under one lock, so that a thread that sees the end of the run sees its exit code too.
void Thread::EndRun(Runs::iterator run, int result, std::exception_ptr exception) {
    const std::lock_guard lock(m_Lock);
    if (m_Worker == run->Worker) {  // else it was forgotten, and another worker may run
        m_Worker = nullptr;
        m_Object = nullptr;
    }
    m_ExitCode = result != 0 ? 1 : 0;
    m_Exception = std::move(exception);
    PostEnd();
    m_Runs.erase(run);
    m_Changed.notify_all();
}

void Thread::HandleEndThread() {
    const std::lock_guard lock(m_Lock);
    m_Worker = nullptr;
    m_Object = nullptr;
    PostEnd();
}

void Thread::PostEnd() const {
    if (m_Caller) {
        PostMessageA(m_Caller->GetSafeHwnd(), EndMessage, 0, 0);
    }
}
