// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/detail/worker.h>

#include <algorithm>
#include <atomic>
#include <system_error>

#include <sys/resource.h>

namespace PLATFORM::detail {

namespace {

constinit std::atomic<unsigned int> workerCount{0};
constinit thread_local CWinThread* currentThread = nullptr;

// Counts one worker more unless that would exceed the limit; two threads at once cannot both take
// the last place.
bool CountWorker() noexcept {
    unsigned int count = workerCount.load();
    do {
        if (count >= WorkerLimit()) {
            return false;
        }
    } while (!workerCount.compare_exchange_weak(count, count + 1));
    return true;
}

// On this system each thread has a nice value of its own. Every process may raise it, but only a
// privileged one lowers it, so priorities above normal have no effect.
void ApplyPriority(int priority) noexcept {
    const int step = priority <= THREAD_PRIORITY_IDLE     ? 19
                     : priority <= THREAD_PRIORITY_LOWEST ? 10
                     : priority < THREAD_PRIORITY_NORMAL  ? 5
                                                          : 0;
    if (step > 0) {
        ::setpriority(PRIO_PROCESS, 0, std::min(::getpriority(PRIO_PROCESS, 0) + step, 19));
    }
}

}  // namespace

std::unique_ptr<CWinThread> Worker::Create(AFX_THREADPROC procedure, void* parameter,
                                           int priority) {
    if (!CountWorker()) {
        return nullptr;
    }
    // The thread starts at once and waits in `IsToRun`: the system has no suspended threads.
    const auto worker = std::make_shared<Worker>(procedure, parameter, priority);
    auto thread = std::make_unique<CWinThread>(worker);
    try {
        worker->m_Thread = std::thread([worker, raw = thread.get()] {
            worker->Run(raw);
            workerCount.fetch_sub(1);
        });
    } catch (const std::system_error&) {
        workerCount.fetch_sub(1);
        return nullptr;
    }
    return thread;
}

unsigned long Worker::Wait(unsigned long milliseconds) {
    std::unique_lock lock(m_Lock);
    const bool ended = WaitUntil(lock, milliseconds, [this] { return m_State == STATE::ENDED; });
    return ended ? WAIT_OBJECT_0 : WAIT_TIMEOUT;
}

bool Worker::Leave(STATE from, STATE to) {
    const std::lock_guard lock(m_Lock);
    if (m_State != from) {
        return false;
    }
    m_State = to;
    m_Changed.notify_all();
    return true;
}

bool Worker::Resume() {
    return Leave(STATE::SUSPENDED, STATE::RESUMED);
}

unsigned long Worker::ExitCode() {
    const std::lock_guard lock(m_Lock);
    return m_ExitCode;
}

void Worker::Finish() {
    static_cast<void>(Leave(STATE::SUSPENDED, STATE::CANCELLED));
    if (!m_Thread.joinable()) {
        return;
    }
    // A worker that deletes itself cannot wait for its own end.
    if (m_Thread.get_id() == std::this_thread::get_id()) {
        m_Thread.detach();
    } else {
        m_Thread.join();
    }
}

bool Worker::IsToRun() {
    std::unique_lock lock(m_Lock);
    m_Changed.wait(lock, [this] { return m_State != STATE::SUSPENDED; });
    const bool resumed = m_State == STATE::RESUMED;
    lock.unlock();
    if (resumed) {
        AwaitRelease();
    }
    return resumed;
}

void Worker::Run(CWinThread* thread) {
    if (!IsToRun()) {
        End(0);
        return;
    }
    currentThread = thread;
    ApplyPriority(m_Priority);
    const unsigned long code = m_Procedure(m_Parameter);
    // Once the end is known, an owner may delete the thread; it is not touched after that.
    const std::unique_ptr<CWinThread> self(thread->m_bAutoDelete ? thread : nullptr);
    End(code);
}

void Worker::End(unsigned long code) {
    const std::lock_guard lock(m_Lock);
    m_State = STATE::ENDED;
    m_ExitCode = code;
    m_Changed.notify_all();
}

}  // namespace PLATFORM::detail

CWinThread* AfxGetThread() noexcept {
    return PLATFORM::detail::currentThread;
}
