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
#include <support/workers.h>
#include <sys/resource.h>

namespace {

class FunctionWork : public ThreadObject {
public:
    explicit FunctionWork(std::function<int(const bool&)> step) : m_Step(std::move(step)) {}

    int Execute(const bool& keepRunning) override { return m_Step(keepRunning); }

private:
    std::function<int(const bool&)> m_Step;
};

// Returns one result after the other; the last must end the run.
class ScriptedWork : public ThreadObject {
public:
    explicit ScriptedWork(std::vector<int> results) : m_Results(std::move(results)) {}

    std::atomic<int> Calls{0};

    int Execute(const bool&) override { return m_Results.at(static_cast<std::size_t>(Calls++)); }

private:
    std::vector<int> m_Results;
};

// One long step, which ends when it shall.
class PollingWork : public ThreadObject {
public:
    std::binary_semaphore Called{0};
    std::atomic<bool> Ended{false};

    int Execute(const bool& keepRunning) override {
        Called.release();
        while (ShallGoOn(keepRunning)) {
            std::this_thread::yield();
        }
        Ended = true;
        return 1;
    }
};

// A window of the test's thread.
class Caller : public CWnd {
public:
    Caller() { Create(); }

    // Waits for the message of an end.
    void AwaitEnd() {
        MSG message;
        GetMessageA(&message, GetSafeHwnd(), 0, 0);
        EXPECT_EQ(message.message, 2029U);
        EXPECT_EQ(message.wParam, 0U);
        EXPECT_EQ(message.lParam, 0);
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
    }

    Caller caller;
    Thread thread;
    ScriptedWork once{{0}};
};

TEST_F(ThreadTest, TheWorksResultsDecideOnTheRun) {
    const struct {
        std::vector<int> Results;
        int Calls;
        unsigned int ExitCode;
    } cases[] = {
        {{0}, 1, 0}, {{2}, 1, 1}, {{1, 0}, 2, 0}, {{1, 3, -1, 7, 0}, 5, 0}, {{-2, 2}, 2, 1}};
    EXPECT_EQ(thread.ExitCode(), 0U);
    for (const auto& run : cases) {
        ScriptedWork work(run.Results);
        RunToTheEnd(work);
        EXPECT_FALSE(thread.IsRunning());
        EXPECT_EQ(work.Calls, run.Calls);
        EXPECT_EQ(thread.ExitCode(), run.ExitCode) << testing::PrintToString(run.Results);
    }
    EXPECT_FALSE(caller.HasMessage());
    thread.HandleEndThread();
    caller.AwaitEnd();
    EXPECT_EQ(thread.ExitCode(), 1U) << "an idle thread that is reset only tells the caller";
}

TEST_F(ThreadTest, OnlyOneRunAtATime) {
    PollingWork work;
    EXPECT_FALSE(thread.Start(nullptr));
    EXPECT_TRUE(thread.Start(&work));
    EXPECT_FALSE(thread.Start(&work));
    EXPECT_FALSE(thread.Start(&once));
    EXPECT_TRUE(thread.IsRunning());
    thread.Stop();
    caller.AwaitEnd();
    RunToTheEnd(once);
    EXPECT_EQ(once.Calls, 1);
}

TEST_F(ThreadTest, OfManyStartsAtOnceOneSucceeds) {
    PollingWork work;
    std::vector<std::future<bool>> starts;
    for (int count = 0; count < 8; ++count) {
        starts.push_back(std::async(std::launch::async, &Thread::Start, &thread, &work));
    }
    int succeeded = 0;
    for (auto& start : starts) {
        succeeded += start.get() ? 1 : 0;
    }
    EXPECT_EQ(succeeded, 1);
    thread.Stop();
    caller.AwaitEnd();
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, AStoppedRunEndsAfterItsStep) {
    std::counting_semaphore<> called{0};
    FunctionWork endless([&called](const bool&) {
        called.release();
        return 1;
    });
    EXPECT_FALSE(thread.KeepRunning());
    EXPECT_TRUE(thread.Start(&endless));
    called.acquire();
    EXPECT_TRUE(thread.KeepRunning());
    EXPECT_TRUE(thread.IsRunning());
    thread.Stop();
    EXPECT_FALSE(thread.KeepRunning());
    caller.AwaitEnd();
    EXPECT_EQ(thread.ExitCode(), 1U);
    for (int count = 0; count < 1000; ++count) {
        ASSERT_TRUE(thread.Start(&endless));
        thread.Stop();
        caller.AwaitEnd();
        ASSERT_EQ(thread.ExitCode(), 1U);
    }
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, ARunStoppedBeforeItsFirstStepCallsNothing) {
    PLATFORM::detail::HoldWorkers(true);
    EXPECT_TRUE(thread.Start(&once));
    thread.Stop();
    PLATFORM::detail::HoldWorkers(false);
    caller.AwaitEnd();
    EXPECT_EQ(once.Calls, 0);
    EXPECT_EQ(thread.ExitCode(), 1U);
    EXPECT_FALSE(thread.IsRunning());
}

TEST_F(ThreadTest, WorkThatThrowsEndsTheRunAsStopped) {
    FunctionWork work([](const bool&) -> int { throw std::runtime_error("from the work"); });
    RunToTheEnd(work);
    EXPECT_EQ(thread.ExitCode(), 1U);
    RunToTheEnd(once);
    EXPECT_EQ(once.Calls, 1) << "the mutex was released";
    EXPECT_EQ(thread.ExitCode(), 0U);
}

TEST_F(ThreadTest, WithoutACallerNobodyIsTold) {
    thread.SetCaller(nullptr);
    EXPECT_TRUE(thread.Start(&once));
    AwaitNoWorkers();
    thread.HandleEndThread();
    EXPECT_FALSE(caller.HasMessage());
    Caller withoutWindow;
    withoutWindow.DestroyWindow();
    thread.SetCaller(&withoutWindow);
    thread.HandleEndThread();
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, TheWorkerOwnsTheMutexOfTheThreadsAddressDuringItsRun) {
    PollingWork work;
    std::ostringstream name;
    name << "Thread[" << std::uppercase << std::hex << reinterpret_cast<std::uintptr_t>(&thread)
         << "]";
    EXPECT_EQ(thread.MutexName(), name.str());
    const HANDLE mutex = OpenMutexA(SYNCHRONIZE, 0, name.str().c_str());
    EXPECT_TRUE(thread.Start(&work));
    work.Called.acquire();
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_TIMEOUT);
    thread.Stop();
    EXPECT_EQ(WaitForSingleObject(mutex, INFINITE), WAIT_OBJECT_0) << "the run has ended";
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

TEST_F(ThreadTest, AMutexOfAnotherPartyEndsTheWorkerSilently) {
    const HANDLE mutex = OpenMutexA(SYNCHRONIZE, 0, thread.MutexName().c_str());
    ASSERT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_TRUE(thread.Start(&once));
    AwaitNoWorkers();
    EXPECT_TRUE(thread.IsRunning());
    EXPECT_EQ(once.Calls, 0);
    EXPECT_FALSE(caller.HasMessage());
    EXPECT_FALSE(thread.Start(&once));
    ReleaseMutex(mutex);
    CloseHandle(mutex);
    thread.HandleEndThread();
    EXPECT_FALSE(thread.IsRunning());
    caller.AwaitEnd();
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
    EXPECT_TRUE(thread.Start(&once));
    AwaitNoWorkers();
    EXPECT_EQ(once.Calls, 1);
}

TEST_F(ThreadTest, DestructionStopsAndWaits) {
    PollingWork work;
    {
        Thread started;
        EXPECT_TRUE(started.Start(&work));
        work.Called.acquire();
    }
    EXPECT_TRUE(work.Ended);
    PLATFORM::detail::HoldWorkers(true);
    {
        Thread held;
        EXPECT_TRUE(held.Start(&once));
        held.Stop();
        PLATFORM::detail::HoldWorkers(false);
    }
    EXPECT_EQ(once.Calls, 0);
}

TEST_F(ThreadTest, AForgottenWorkerIsWaitedForAndDisturbsNoLaterRun) {
    PollingWork forgotten;
    {
        Thread own;
        own.SetCaller(&caller);
        EXPECT_TRUE(own.Start(&forgotten));
        forgotten.Called.acquire();
        own.HandleEndThread();
        caller.AwaitEnd();
        EXPECT_FALSE(own.IsRunning());
        EXPECT_TRUE(own.Start(&once));
        own.Stop();
        caller.AwaitEnd();  // of the forgotten worker, the only one that owned the mutex
        EXPECT_TRUE(forgotten.Ended);
    }
    EXPECT_EQ(once.Calls, 0) << "its worker found the mutex owned, or its run stopped";
}

TEST_F(ThreadTest, TheWorkGivesWayToTheOwnersThreadAndMayStopItsOwnRun) {
    int calls = 0;
    int nice = 0;
    FunctionWork work([&](const bool& keepRunning) {
        nice = ::getpriority(PRIO_PROCESS, 0);
        EXPECT_TRUE(ThreadObject::ShallGoOn(keepRunning));
        thread.Stop();
        EXPECT_FALSE(ThreadObject::ShallGoOn(keepRunning));
        return ++calls;
    });
    RunToTheEnd(work);
    EXPECT_EQ(nice, std::min(::getpriority(PRIO_PROCESS, 0) + 5, 19));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(thread.ExitCode(), 1U);
}

}  // namespace
