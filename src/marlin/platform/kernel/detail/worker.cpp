// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/detail/worker.h>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <utility>

#include <sys/resource.h>

namespace PLATFORM::detail {

namespace {

constinit std::atomic<unsigned int> workerCount{0};
constinit thread_local CWinThread* currentThread = nullptr;
constinit thread_local Worker* currentWorker = nullptr;

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

// The worker that ended last. It is never destroyed: workers may end while the process does.
union LastEnded {
    std::thread Thread;

    LastEnded() noexcept : Thread() {}
    ~LastEnded() {}
};
constinit std::mutex lastLock;
[[gnu::init_priority(MARLINSUITE::detail::LoadValues)]] LastEnded last;

// Each worker that ends is joined by the next one.
void ReplaceLast(std::thread thread) {
    {
        const std::lock_guard lock(lastLock);
        std::swap(last.Thread, thread);
    }
    if (thread.joinable()) {
        thread.join();
    }
}

// Joins the very last one, before the code that it ran may be unloaded.
struct Joiner {
    ~Joiner() { ReplaceLast({}); }
};
[[maybe_unused, gnu::init_priority(MARLINSUITE::detail::LoadValues)]] const Joiner joiner;

}  // namespace

std::exception_ptr ExceptionOf(const std::function<void()>& call) {
    try {
        call();
    } catch (...) {
        std::exception_ptr thrown = std::current_exception();
        if (!thrown) {
            throw;  // no exception: the thread is cancelled, which nobody may hold up
        }
        return thrown;
    }
    return nullptr;
}

std::unique_ptr<CWinThread> Worker::Create(AFX_THREADPROC procedure, void* parameter,
                                           int priority) {
    if (!CountWorker()) {
        return nullptr;
    }
    // The thread starts at once and waits in `IsToRun`: the system has no suspended threads.
    const auto worker = std::make_shared<Worker>(procedure, parameter, priority);
    auto thread = std::make_unique<CWinThread>(worker);
    try {
        worker->m_Thread = std::thread([worker, raw = thread.get()] { worker->Run(raw); });
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
        Retire();
    } else {
        m_Thread.join();
    }
}

void Worker::Retire() {
    if (currentWorker) {
        ReplaceLast(std::move(currentWorker->m_Thread));
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
    // Also for a thread that is cancelled.
    struct Ending {
        Worker& Self;
        CWinThread* Thread;
        unsigned long Code;

        ~Ending() {
            // Once the end is known, an owner may delete the thread; it is not touched after that.
            const std::unique_ptr<CWinThread> own(Thread->m_bAutoDelete ? Thread : nullptr);
            Self.End(Code);
        }
    } ending{*this, thread, 1};
    currentThread = thread;
    currentWorker = this;
    ApplyPriority(m_Priority);
    ending.Code = m_Procedure(m_Parameter);
}

void Worker::End(unsigned long code) {
    workerCount.fetch_sub(1);
    const std::lock_guard lock(m_Lock);
    m_State = STATE::ENDED;
    m_ExitCode = code;
    m_Changed.notify_all();
}

}  // namespace PLATFORM::detail

CWinThread* AfxGetThread() noexcept {
    return PLATFORM::detail::currentThread;
}
