// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/mutex.h>
#include <marlin/platform/kernel/win_thread.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/runtime/thread.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <iterator>

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
    // Running workers look their work up in the list, so it is emptied only after the last end.
    for (const Run& run : m_Runs) {
        WaitForSingleObject(run.Worker->m_hThread, INFINITE);
    }
    m_Runs.clear();
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

void Thread::SetCaller(CWnd* caller) {
    const std::lock_guard lock(m_Lock);
    m_Caller = caller;
}

bool Thread::Start(ThreadObject* object) {
    // Destroyed after the lock is released: to delete a worker is to wait for its last steps, and
    // those may need the lock.
    std::vector<Run> ended;
    const std::lock_guard lock(m_Lock);
    if (!object || m_Object) {
        return false;
    }
    ended = TakeEndedRuns();
    m_Object = object;
    std::atomic_ref<bool>(m_KeepRunning).store(true);
    return BeginWorker();
}

// Suspended until it is recorded, so that the worker finds its entry in the list.
bool Thread::BeginWorker() {
    m_Runs.reserve(m_Runs.size() + 1);  // the worker below must not be lost to an exception
    CWinThread* const worker =
        AfxBeginThread(&ThreadProc, this, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    if (!worker) {
        return false;
    }
    worker->m_bAutoDelete = false;
    m_Runs.push_back({std::unique_ptr<CWinThread>(worker), m_Object});
    m_Worker = worker;
    ResumeThread(worker->m_hThread);
    return true;
}

// Forgotten workers may run on beside the recorded one, so several may have ended, or none.
std::vector<Thread::Run> Thread::TakeEndedRuns() {
    const auto firstEnded = std::partition(m_Runs.begin(), m_Runs.end(), [](const Run& run) {
        return WaitForSingleObject(run.Worker->m_hThread, 0) == WAIT_TIMEOUT;
    });
    std::vector<Run> ended(std::make_move_iterator(firstEnded),
                           std::make_move_iterator(m_Runs.end()));
    m_Runs.erase(firstEnded, m_Runs.end());
    return ended;
}

void Thread::Stop() noexcept {
    std::atomic_ref<bool>(m_KeepRunning).store(false);
}

unsigned int Thread::ThreadProc(void* thread) {
    auto& self = *static_cast<Thread*>(thread);
    const CWinThread* const worker = AfxGetThread();
    ThreadObject* const object = self.ObjectOf(worker);
    if (WaitForSingleObject(self.m_Mutex, 0) == WAIT_TIMEOUT) {
        return MutexNotTaken;
    }
    const int result = self.Execute(*object);
    ReleaseMutex(self.m_Mutex);
    return self.EndRun(worker, result);
}

ThreadObject* Thread::ObjectOf(const CWinThread* worker) const {
    const std::lock_guard lock(m_Lock);
    return std::find_if(m_Runs.begin(), m_Runs.end(),
                        [worker](const Run& run) { return run.Worker.get() == worker; })
        ->Object;
}

int Thread::Execute(ThreadObject& object) const {
    int result = 1;
    try {
        while (KeepRunning()) {
            result = object.Execute(m_KeepRunning);
            if (result == 0 || result == 2) {
                break;
            }
        }
    } catch (...) {
        result = 1;  // nobody could catch it on this thread; the exit code reports it
    }
    return result;
}

// Under one lock, so that a thread that sees the end of the run sees its exit code too.
unsigned int Thread::EndRun(const CWinThread* worker, int result) {
    const std::lock_guard lock(m_Lock);
    if (m_Worker == worker) {  // else it was forgotten, and another worker may run
        m_Worker = nullptr;
        m_Object = nullptr;
    }
    m_ExitCode = result != 0 ? 1 : 0;
    PostEnd();
    return m_ExitCode;
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
