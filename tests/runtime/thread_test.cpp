// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/mutex.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/runtime/thread.h>

#include <atomic>
#include <functional>
#include <future>
#include <semaphore>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/resource.h>

namespace {

// Counts its calls and does as it is told, or ends the run at once.
class Work : public ThreadObject {
public:
    explicit Work(std::function<int(const bool&)> step = nullptr) : m_Step(std::move(step)) {}

    std::atomic<int> Calls{0};
    std::counting_semaphore<> Called{0};

    int Execute(const bool& keepRunning) override {
        ++Calls;
        Called.release();
        return m_Step ? m_Step(keepRunning) : 0;
    }

private:
    std::function<int(const bool&)> m_Step;
};

// One long step, which ends when it shall.
int Poll(const bool& keepRunning) {
    while (ThreadObject::ShallGoOn(keepRunning)) {
        std::this_thread::yield();
    }
    return 1;
}

// A window of the test's thread.
class Caller : public CWnd {
public:
    Caller() { Create(); }

    // Waits for the message of an end, the only one.
    void AwaitEnd() {
        MSG message;
        GetMessageA(&message, GetSafeHwnd(), 0, 0);
        EXPECT_EQ(message.message, 2029U);
        EXPECT_EQ(message.wParam + static_cast<WPARAM>(message.lParam), 0U);
        EXPECT_FALSE(HasMessage());
    }

    [[nodiscard]] bool HasMessage() const {
        MSG message;
        return PeekMessageA(&message, GetSafeHwnd(), 0, 0, PM_NOREMOVE) != 0;
    }
};

class ThreadTest : public testing::Test {
protected:
    ThreadTest() { thread.SetCaller(&caller); }

    void RunToTheEnd(ThreadObject& work) {
        ASSERT_TRUE(thread.Start(&work));
        caller.AwaitEnd();
        EXPECT_FALSE(thread.IsRunning());
    }
    [[nodiscard]] HANDLE OpenMutex() const {
        return OpenMutexA(SYNCHRONIZE, 0, thread.MutexName().c_str());
    }

    Caller caller;
    Thread thread;
    Work once;
    Work polling{Poll};
};

TEST_F(ThreadTest, TheWorksResultsDecideOnTheRun) {
    const struct {
        std::vector<int> Results;
        unsigned int ExitCode;
    } cases[] = {{{0}, 0}, {{2}, 1}, {{1, 0}, 0}, {{1, 3, -1, 7, 0}, 0}, {{-2, 2}, 1}};
    EXPECT_EQ(thread.ExitCode(), 0U);
    for (const auto& [results, exitCode] : cases) {
        auto next = results.begin();
        Work work([&next](const bool&) { return *next++; });
        RunToTheEnd(work);
        EXPECT_EQ(next, results.end());
        EXPECT_EQ(thread.ExitCode(), exitCode) << testing::PrintToString(results);
        EXPECT_EQ(thread.Exception(), nullptr);
    }
    thread.HandleEndThread();
    caller.AwaitEnd();
    EXPECT_EQ(thread.ExitCode(), 1U) << "an idle thread that is reset only tells the caller";
}

TEST_F(ThreadTest, OneRunAtATimeEvenOfManyStartsAtOnce) {
    EXPECT_FALSE(thread.Start(nullptr));
    EXPECT_FALSE(thread.IsRunning());
    std::vector<std::future<bool>> starts;
    for (int count = 0; count < 8; ++count) {
        starts.push_back(std::async(std::launch::async, &Thread::Start, &thread, &polling));
    }
    int succeeded = 0;
    for (auto& start : starts) {
        succeeded += start.get() ? 1 : 0;
    }
    EXPECT_EQ(succeeded, 1);
    EXPECT_TRUE(thread.IsRunning());
    EXPECT_FALSE(thread.Start(&once));
    thread.Stop();
    caller.AwaitEnd();
    RunToTheEnd(once);
    EXPECT_EQ(once.Calls, 1);
}

TEST_F(ThreadTest, AStoppedRunEndsAfterItsStep) {
    Work endless([](const bool&) { return 1; });
    EXPECT_FALSE(thread.KeepRunning());
    for (int count = 0; count < 1000; ++count) {
        ASSERT_TRUE(thread.Start(&endless));
        ASSERT_TRUE(thread.KeepRunning());
        if (count % 2 == 0) {
            endless.Called.acquire();
        }
        thread.Stop();
        ASSERT_FALSE(thread.KeepRunning());
        caller.AwaitEnd();
        ASSERT_EQ(thread.ExitCode(), 1U);
    }
}

TEST_F(ThreadTest, ARunStoppedBeforeItsFirstStepCallsNothing) {
    PLATFORM::detail::HoldWorkers(true);
    auto start = std::async(std::launch::async, &Thread::Start, &thread, &once);
    while (!thread.IsRunning()) {
        std::this_thread::yield();
    }
    EXPECT_FALSE(thread.Wait(1));
    thread.Stop();
    EXPECT_EQ(start.wait_for(std::chrono::seconds(0)), std::future_status::timeout)
        << "the worker has not tried to take the mutex";
    PLATFORM::detail::HoldWorkers(false);
    EXPECT_TRUE(start.get());
    caller.AwaitEnd();
    EXPECT_EQ(once.Calls, 0);
    EXPECT_EQ(thread.ExitCode(), 1U);
}

TEST_F(ThreadTest, AnExceptionOrACancellationOfTheWorkEndsTheRunAsStopped) {
    Work throwing([](const bool&) -> int { throw std::runtime_error("from the work"); });
    Work cancelled([](const bool&) -> int { ::pthread_exit(nullptr); });
    for (Work* const work : {&throwing, &cancelled}) {
        RunToTheEnd(*work);
        EXPECT_EQ(thread.ExitCode(), 1U);
        EXPECT_EQ(thread.Exception() != nullptr, work == &throwing);
        if (thread.Exception()) {
            EXPECT_THROW(std::rethrow_exception(thread.Exception()), std::runtime_error);
        }
        RunToTheEnd(once);  // since the mutex was released
        EXPECT_EQ(thread.ExitCode(), 0U);
        EXPECT_EQ(thread.Exception(), nullptr);
    }
    EXPECT_EQ(once.Calls, 2);
}

TEST_F(ThreadTest, WithoutACallerNobodyIsTold) {
    thread.SetCaller(nullptr);
    EXPECT_TRUE(thread.Start(&once));
    EXPECT_TRUE(thread.Wait());
    thread.HandleEndThread();
    Caller withoutWindow;
    withoutWindow.DestroyWindow();
    thread.SetCaller(&withoutWindow);
    thread.HandleEndThread();
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, TheWorkerOwnsTheMutexOfTheThreadsAddressFromTheStartToTheEndOfItsRun) {
    std::ostringstream name;
    name << "Thread[" << std::uppercase << std::hex << reinterpret_cast<std::uintptr_t>(&thread)
         << "]";
    EXPECT_EQ(thread.MutexName(), name.str());
    const HANDLE mutex = OpenMutex();
    for (int count = 0; count < 100; ++count) {
        EXPECT_TRUE(thread.Start(&polling));
        ASSERT_EQ(WaitForSingleObject(mutex, 0), WAIT_TIMEOUT);
        thread.Stop();
        ASSERT_EQ(WaitForSingleObject(mutex, INFINITE), WAIT_OBJECT_0) << "the run has ended";
        ReleaseMutex(mutex);
        caller.AwaitEnd();
    }
    CloseHandle(mutex);
}

TEST_F(ThreadTest, AMutexOfAnotherPartyEndsTheWorkerSilently) {
    const HANDLE mutex = OpenMutex();
    ASSERT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_TRUE(thread.Start(&once));
    EXPECT_TRUE(thread.Wait());
    EXPECT_TRUE(thread.IsRunning());
    EXPECT_FALSE(caller.HasMessage());
    EXPECT_FALSE(thread.Start(&once));
    ReleaseMutex(mutex);
    CloseHandle(mutex);
    thread.HandleEndThread();
    EXPECT_FALSE(thread.IsRunning());
    caller.AwaitEnd();
    EXPECT_EQ(once.Calls, 0);
    RunToTheEnd(once);
    EXPECT_EQ(once.Calls, 1);
}

TEST_F(ThreadTest, AStartWithoutAWorkerFailsUntilReset) {
    PLATFORM::detail::SetWorkerLimit(0);
    EXPECT_FALSE(thread.Start(&once));
    PLATFORM::detail::SetWorkerLimit(PLATFORM::detail::NoWorkerLimit);
    EXPECT_FALSE(thread.IsRunning());
    EXPECT_FALSE(thread.Start(&once)) << "the object stays recorded";
    thread.HandleEndThread();
    caller.AwaitEnd();
    RunToTheEnd(once);
    EXPECT_EQ(once.Calls, 1);
}

TEST_F(ThreadTest, WaitsForTheEndOfAllItsWorkersAtMostSoLongAndNotOnThemselves) {
    EXPECT_TRUE(thread.Wait(0)) << "none runs";
    Work own([this](const bool& keepRunning) { return thread.Wait() ? 0 : Poll(keepRunning); });
    EXPECT_TRUE(thread.Start(&own));
    EXPECT_FALSE(thread.Wait(1));
    EXPECT_FALSE(thread.Wait(0x100000000)) << "of 32 bits these are 0";
    thread.Stop();
    EXPECT_TRUE(thread.Wait(~0UL));
    EXPECT_EQ(thread.ExitCode(), 1U);
    {
        Thread inner;
        EXPECT_TRUE(inner.Start(&polling));
        polling.Called.acquire();
    }  // stops and waits
    EXPECT_EQ(polling.Calls, 1);
}

// Stopped and forgotten in its step, a worker ends though others are started, and ends their run
// neither.
TEST_F(ThreadTest, AForgottenWorkerDisturbsNoLaterRunNorIsItRevived) {
    std::binary_semaphore goOn{0};
    bool stopped = false;
    Work forgotten([&](const bool& keepRunning) {
        goOn.acquire();
        stopped = !ThreadObject::ShallGoOn(keepRunning);
        return 1;
    });
    EXPECT_TRUE(thread.Start(&forgotten));
    forgotten.Called.acquire();
    thread.Stop();
    thread.HandleEndThread();
    caller.AwaitEnd();
    EXPECT_FALSE(thread.IsRunning());
    EXPECT_TRUE(thread.Start(&polling)) << "its worker finds the mutex owned and ends";
    EXPECT_TRUE(thread.KeepRunning());
    goOn.release();
    caller.AwaitEnd();  // of the forgotten one
    EXPECT_TRUE(thread.Wait());
    EXPECT_TRUE(stopped);
    EXPECT_EQ(forgotten.Calls, 1);
    EXPECT_EQ(polling.Calls, 0);
    EXPECT_TRUE(thread.IsRunning()) << "the later one stays recorded";
}

TEST_F(ThreadTest, TheWorkGivesWayToTheOwnersThreadAndMayStopItsOwnRun) {
    int nice = 0;
    Work work([&](const bool& keepRunning) {
        nice = ::getpriority(PRIO_PROCESS, 0);
        EXPECT_TRUE(ThreadObject::ShallGoOn(keepRunning));
        thread.Stop();
        EXPECT_FALSE(ThreadObject::ShallGoOn(keepRunning));
        return 1;
    });
    RunToTheEnd(work);
    EXPECT_EQ(nice, std::min(::getpriority(PRIO_PROCESS, 0) + 5, 19));
    EXPECT_EQ(work.Calls, 1);
    EXPECT_EQ(thread.ExitCode(), 1U);
}

}  // namespace
