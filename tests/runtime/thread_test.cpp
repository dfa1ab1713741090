// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/mutex.h>
#include <marlin/runtime/thread.h>

#include <future>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>
#include <runtime/thread_test_work.h>
#include <support/workers.h>
#include <sys/resource.h>

namespace {

class ThreadTest : public testing::Test {
protected:
    ThreadTest() { thread.SetCaller(&caller); }

    /// Lets the work run to its end; what the caller is told then.
    MSG Run(ThreadObject& work) {
        EXPECT_TRUE(thread.Start(&work));
        return caller.AwaitMessage();
    }

    Caller caller;
    Thread thread;
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
        Run(work);
        EXPECT_FALSE(thread.IsRunning());
        EXPECT_EQ(work.Calls, run.Calls);
        EXPECT_EQ(thread.ExitCode(), run.ExitCode);
    }
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, TheEndIsPostedToTheCallersThreadAfterTheRun) {
    ScriptedWork work({2});
    const MSG message = Run(work);
    EXPECT_EQ(message.message, 2029U);
    EXPECT_EQ(message.wParam, 0U);
    EXPECT_EQ(message.lParam, 0);
    EXPECT_EQ(caller.HandledOn, std::this_thread::get_id());
    EXPECT_NE(work.CalledOn.load(), std::this_thread::get_id());
}

TEST_F(ThreadTest, OnlyOneRunAtATime) {
    PollingWork work;
    ScriptedWork other({0});
    EXPECT_FALSE(thread.Start(nullptr));
    EXPECT_TRUE(thread.Start(&work));
    EXPECT_FALSE(thread.Start(&work));
    EXPECT_FALSE(thread.Start(&other));
    EXPECT_TRUE(thread.IsRunning());
    thread.Stop();
    caller.AwaitMessage();
    Run(other);
    EXPECT_EQ(other.Calls, 1);
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
    caller.AwaitMessage();
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, AStoppedRunEndsAfterItsStep) {
    EndlessWork work;
    EXPECT_FALSE(thread.KeepRunning());
    EXPECT_TRUE(thread.Start(&work));
    work.Called.acquire();
    EXPECT_TRUE(thread.KeepRunning());
    EXPECT_TRUE(thread.IsRunning());
    thread.Stop();
    EXPECT_FALSE(thread.KeepRunning());
    caller.AwaitMessage();
    EXPECT_EQ(thread.ExitCode(), 1U);
}

TEST_F(ThreadTest, ARunStoppedBeforeItsFirstStepCallsNothing) {
    ScriptedWork work({0});
    PLATFORM::HoldWorkers(true);
    EXPECT_TRUE(thread.Start(&work));
    thread.Stop();
    PLATFORM::HoldWorkers(false);
    caller.AwaitMessage();
    EXPECT_EQ(work.Calls, 0);
    EXPECT_EQ(thread.ExitCode(), 1U);
    EXPECT_FALSE(thread.IsRunning());
}

TEST_F(ThreadTest, AThousandStartsAndStopsInARow) {
    EndlessWork work;
    for (int count = 0; count < 1000; ++count) {
        ASSERT_TRUE(thread.Start(&work));
        thread.Stop();
        caller.AwaitMessage();
        ASSERT_EQ(thread.ExitCode(), 1U);
    }
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, WorkThatThrowsEndsTheRunAsStopped) {
    ScriptedWork fine({0, 0});
    Run(fine);
    FunctionWork work([](const bool&) -> int { throw std::runtime_error("from the work"); });
    EXPECT_EQ(Run(work).message, 2029U);
    EXPECT_EQ(thread.ExitCode(), 1U);
    Run(fine);  // the mutex was released
    EXPECT_EQ(thread.ExitCode(), 0U);
}

TEST_F(ThreadTest, WithoutACallerNobodyIsTold) {
    thread.SetCaller(nullptr);
    ScriptedWork work({0});
    EXPECT_TRUE(thread.Start(&work));
    AwaitNoWorkers();
    thread.HandleEndThread();
    EXPECT_FALSE(caller.HasMessage());
    Caller withoutWindow;
    withoutWindow.DestroyWindow();
    thread.SetCaller(&withoutWindow);
    thread.HandleEndThread();
    EXPECT_FALSE(caller.HasMessage());
}

TEST_F(ThreadTest, AnIdleThreadThatIsResetOnlyTellsTheCaller) {
    ScriptedWork work({2});
    Run(work);
    thread.HandleEndThread();
    EXPECT_EQ(caller.AwaitMessage().message, 2029U);
    EXPECT_EQ(thread.ExitCode(), 1U);
}

TEST_F(ThreadTest, TheMutexIsNamedAfterTheThreadsAddress) {
    std::ostringstream name;
    name << "Thread[" << std::uppercase << std::hex << reinterpret_cast<std::uintptr_t>(&thread)
         << "]";
    EXPECT_EQ(thread.MutexName(), name.str());
}

TEST_F(ThreadTest, TheWorkerOwnsTheMutexDuringItsRun) {
    EndlessWork work;
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, "Thread[0]"), nullptr);
    const HANDLE mutex = OpenMutexA(SYNCHRONIZE, 0, thread.MutexName().c_str());
    EXPECT_TRUE(thread.Start(&work));
    work.Called.acquire();
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_TIMEOUT);
    thread.Stop();
    EXPECT_EQ(WaitForSingleObject(mutex, INFINITE), WAIT_OBJECT_0) << "the run has ended";
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

TEST_F(ThreadTest, AMutexOfAnotherPartyEndsTheWorkerSilently) {
    ScriptedWork work({0});
    const HANDLE mutex = OpenMutexA(SYNCHRONIZE, 0, thread.MutexName().c_str());
    ASSERT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_TRUE(thread.Start(&work));
    AwaitNoWorkers();
    EXPECT_TRUE(thread.IsRunning());
    EXPECT_EQ(work.Calls, 0);
    EXPECT_FALSE(caller.HasMessage());
    EXPECT_FALSE(thread.Start(&work));
    ReleaseMutex(mutex);
    CloseHandle(mutex);
    thread.HandleEndThread();
    EXPECT_FALSE(thread.IsRunning());
    caller.AwaitMessage();
    Run(work);
    EXPECT_EQ(work.Calls, 1);
}

TEST_F(ThreadTest, AStartWithoutAWorkerFailsUntilReset) {
    ScriptedWork work({0});
    PLATFORM::SetWorkerLimit(0);
    EXPECT_FALSE(thread.Start(&work));
    PLATFORM::SetWorkerLimit(PLATFORM::NoWorkerLimit);
    EXPECT_FALSE(thread.IsRunning());
    EXPECT_FALSE(thread.Start(&work)) << "the object stays recorded";
    thread.HandleEndThread();
    caller.AwaitMessage();
    Run(work);
    EXPECT_EQ(work.Calls, 1);
}

TEST_F(ThreadTest, DestructionStopsAndWaits) {
    PollingWork work;
    {
        Thread ended;
        EXPECT_TRUE(ended.Start(&work));
        work.Called.acquire();
    }
    EXPECT_TRUE(work.Ended);
    ScriptedWork never({0});
    PLATFORM::HoldWorkers(true);
    auto held = std::make_unique<Thread>();
    EXPECT_TRUE(held->Start(&never));
    held->Stop();
    PLATFORM::HoldWorkers(false);
    held.reset();
    EXPECT_EQ(never.Calls, 0);
}

TEST_F(ThreadTest, AForgottenWorkerIsWaitedForAndDisturbsNoLaterRun) {
    PollingWork forgotten;
    ScriptedWork later({0});
    {
        Thread ended;
        ended.SetCaller(&caller);
        EXPECT_TRUE(ended.Start(&forgotten));
        forgotten.Called.acquire();
        ended.HandleEndThread();
        caller.AwaitMessage();
        EXPECT_FALSE(ended.IsRunning());
        EXPECT_TRUE(ended.Start(&later));
        ended.Stop();
        caller.AwaitMessage();  // of the forgotten worker, the only one that owned the mutex
        EXPECT_TRUE(forgotten.Ended);
    }
    EXPECT_EQ(later.Calls, 0) << "its worker found the mutex owned, or its run stopped";
}

TEST_F(ThreadTest, TheWorkerGivesWayToTheOwnersThread) {
    int nice = 0;
    FunctionWork work([&nice](const bool&) {
        nice = ::getpriority(PRIO_PROCESS, 0);
        return 0;
    });
    Run(work);
    EXPECT_EQ(nice, std::min(::getpriority(PRIO_PROCESS, 0) + 5, 19));
}

TEST_F(ThreadTest, TheWorkMayStopItsOwnRun) {
    int calls = 0;
    FunctionWork work([&](const bool& keepRunning) {
        EXPECT_TRUE(ThreadObject::ShallGoOn(keepRunning));
        thread.Stop();
        EXPECT_FALSE(ThreadObject::ShallGoOn(keepRunning));
        return ++calls;
    });
    Run(work);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(thread.ExitCode(), 1U);
}

}  // namespace
