// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/detail/worker.h>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <utility>

#include <cxxabi.h>
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

// The worker that ended last. The next one joins it, or else the unloading of the library, in whose
// code no thread may be then.
class LastEnded {
public:
    LastEnded() = default;
    LastEnded(const LastEnded&) = delete;
    LastEnded& operator=(const LastEnded&) = delete;
    ~LastEnded() { Replace({}); }

    void Replace(std::thread thread) {
        {
            const std::lock_guard lock(m_Lock);
            std::swap(m_Thread, thread);
        }
        if (thread.joinable()) {
            thread.join();
        }
    }

private:
    std::mutex m_Lock;
    std::thread m_Thread;
};

}  // namespace

std::exception_ptr ExceptionOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const abi::__forced_unwind&) {
        throw;  // the thread is cancelled, which nobody may hold up
    } catch (...) {
        return std::current_exception();
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
        MARLINSUITE::detail::ProcessObject<LastEnded>().Replace(std::move(m_Thread));
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
