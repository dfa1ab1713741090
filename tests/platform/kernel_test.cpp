// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/mutex.h>
#include <marlin/platform/kernel/version.h>
#include <marlin/platform/kernel/win_thread.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <pthread.h>
#include <support/workers.h>
#include <sys/resource.h>

namespace {

std::shared_ptr<void> Own(HANDLE handle) {
    return {handle, CloseHandle};
}

// What another thread gets, which ends then.
unsigned long WaitElsewhere(HANDLE handle, unsigned long milliseconds = 0) {
    return std::async(std::launch::async, WaitForSingleObject, handle, milliseconds).get();
}

struct Work {
    std::atomic<int> Calls{0};
    std::atomic<CWinThread*> Self{nullptr};
    std::atomic<int> Nice{0};
};

unsigned int Record(void* parameter) {
    Work& work = *static_cast<Work*>(parameter);
    work.Self = AfxGetThread();
    work.Nice = ::getpriority(PRIO_PROCESS, 0);
    ++work.Calls;
    return 4000000000U;
}

std::unique_ptr<CWinThread> Suspended(Work& work, int priority = THREAD_PRIORITY_NORMAL) {
    CWinThread* const thread = AfxBeginThread(&Record, &work, priority, 0, CREATE_SUSPENDED);
    if (thread) {
        thread->m_bAutoDelete = false;
    }
    return std::unique_ptr<CWinThread>(thread);
}

TEST(Mutex, ItsOwnerAloneReleasesItAsOftenAsItTookItOrAbandonsItByEnding) {
    const auto owned = Own(CreateMutexA(nullptr, 1, nullptr));
    const HANDLE mutex = owned.get();
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    for (const unsigned long time : {0UL, 1UL, 1UL << 32U}) {  // the last one is 0 in 32 bits
        EXPECT_EQ(WaitElsewhere(mutex, time), WAIT_TIMEOUT);
    }
    EXPECT_EQ(std::async(std::launch::async, ReleaseMutex, mutex).get(), 0);
    auto first = std::async(std::launch::async, WaitForSingleObject, mutex, INFINITE);
    auto second = std::async(std::launch::async, WaitForSingleObject, mutex, ~0UL);
    for (auto* const waiting : {&first, &second}) {  // most likely in the wait by then
        EXPECT_EQ(waiting->wait_for(std::chrono::milliseconds(10)), std::future_status::timeout);
    }
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(first.get() + second.get(), WAIT_OBJECT_0 + WAIT_ABANDONED);
    EXPECT_EQ(ReleaseMutex(mutex), 0);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_ABANDONED);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
}

TEST(Clock, AndWaitsCountMilliseconds) {
    const auto owned = Own(CreateMutexA(nullptr, 1, nullptr));
    const auto begin = std::chrono::steady_clock::now();
    const unsigned long first = timeGetTime();
    EXPECT_EQ(WaitElsewhere(owned.get(), 30), WAIT_TIMEOUT);
    const unsigned long counted = (timeGetTime() - first) & 0xFFFFFFFF;
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin);
    EXPECT_GE(counted, 29U);
    EXPECT_GE(time.count() + 1, static_cast<long>(counted));
    EXPECT_LT(time.count(), 10'000);
}

TEST(Mutex, ANameStandsForOneMutexAsLongAsItIsOpen) {
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, "a name"), nullptr);
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, nullptr), nullptr);
    {
        const auto first = Own(CreateMutexA(nullptr, 1, "a name"));
        const auto second = Own(CreateMutexA(nullptr, 1, "a name"));
        const auto third = Own(OpenMutexA(SYNCHRONIZE, 0, "a name"));
        const auto other = Own(CreateMutexA(nullptr, 0, "A NAME"));
        EXPECT_NE(first, second);
        EXPECT_EQ(WaitElsewhere(third.get()), WAIT_TIMEOUT);
        EXPECT_EQ(WaitElsewhere(other.get()), WAIT_OBJECT_0);
        EXPECT_EQ(ReleaseMutex(third.get()), 1);
        EXPECT_EQ(ReleaseMutex(first.get()), 0) << "an existing mutex is not owned through Create";
    }
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, "a name"), nullptr);
}

TEST(WinThread, ASuspendedWorkerRunsOnceResumedAndNoLongerHeld) {
    Work work;
    const auto thread = Suspended(work);
    const HANDLE handle = thread->m_hThread;
    unsigned long code = 0;
    EXPECT_EQ(WaitForSingleObject(handle, 0), WAIT_TIMEOUT);
    EXPECT_EQ(GetExitCodeThread(handle, &code), 1);
    EXPECT_EQ(code, STILL_ACTIVE);
    PLATFORM::detail::HoldWorkers(true);
    EXPECT_EQ(ResumeThread(handle), 1U);
    EXPECT_EQ(ResumeThread(handle), 0U);
    EXPECT_EQ(WaitForSingleObject(handle, 1), WAIT_TIMEOUT);
    EXPECT_EQ(work.Calls, 0);
    PLATFORM::detail::HoldWorkers(false);
    EXPECT_EQ(WaitForSingleObject(handle, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(GetExitCodeThread(handle, &code), 1);
    EXPECT_EQ(code, 4000000000U);
    EXPECT_EQ(work.Calls, 1);
    EXPECT_EQ(work.Self, thread.get());
    EXPECT_EQ(AfxGetThread(), nullptr);
}

TEST(WinThread, LowPrioritiesGiveWay) {
    const int own = ::getpriority(PRIO_PROCESS, 0);
    for (const auto& [priority, step] : {std::pair{THREAD_PRIORITY_NORMAL, 0},
                                         {THREAD_PRIORITY_BELOW_NORMAL, 5},
                                         {THREAD_PRIORITY_LOWEST, 10},
                                         {THREAD_PRIORITY_IDLE, 19}}) {
        Work work;
        const auto thread = Suspended(work, priority);
        ResumeThread(thread->m_hThread);
        WaitForSingleObject(thread->m_hThread, INFINITE);
        EXPECT_EQ(work.Nice, std::min(own + step, 19)) << priority;
    }
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), own);
}

TEST(WinThread, WorkersRunUnlessWithoutWorkBeyondTheLimitOrDeletedSuspended) {
    Work work;
    EXPECT_EQ(AfxBeginThread(nullptr, &work), nullptr);
    PLATFORM::detail::SetWorkerLimit(0);
    EXPECT_EQ(Suspended(work), nullptr);
    PLATFORM::detail::SetWorkerLimit(PLATFORM::detail::NoWorkerLimit);
    EXPECT_NE(Suspended(work), nullptr);
    EXPECT_EQ(work.Calls, 0);
    const auto cancelled = [](void*) -> unsigned int { ::pthread_exit(nullptr); };
    CWinThread* const thread =
        AfxBeginThread(cancelled, nullptr, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    thread->m_bAutoDelete = false;
    const std::unique_ptr<CWinThread> owner(thread);
    ResumeThread(thread->m_hThread);
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, INFINITE), WAIT_OBJECT_0);
    unsigned long code = 0;
    EXPECT_EQ(GetExitCodeThread(thread->m_hThread, &code), 1);
    EXPECT_EQ(code, 1U);
    ASSERT_NE(AfxBeginThread(&Record, &work), nullptr);
    AwaitNoWorkers();  // the one that nobody owns deletes itself
    EXPECT_EQ(work.Calls, 1);
}

TEST(Handles, ThatNameNothingOrAnotherKindAreTold) {
    const HANDLE mutex = CreateMutexA(nullptr, 0, nullptr);
    unsigned long code = 5;
    EXPECT_EQ(ResumeThread(mutex), 0xFFFFFFFFU);
    EXPECT_EQ(GetExitCodeThread(mutex, &code), 0);
    EXPECT_EQ(CloseHandle(mutex), 1);
    for (const HANDLE handle : {HANDLE(nullptr), mutex, HANDLE(~0ULL)}) {
        EXPECT_EQ(ResumeThread(handle), 0xFFFFFFFFU);
        EXPECT_EQ(GetExitCodeThread(handle, &code), 0);
        EXPECT_EQ(WaitForSingleObject(handle, INFINITE), WAIT_FAILED);
        EXPECT_EQ(ReleaseMutex(handle), 0);
        EXPECT_EQ(CloseHandle(handle), 0);
    }
    EXPECT_EQ(code, 5U);
}

TEST(Version, ThePlatformIsTheSecond) {
    OSVERSIONINFOA information;
    EXPECT_EQ(GetVersionExA(&information), 1);
    EXPECT_EQ(information.dwPlatformId, 2U);
    information.dwOSVersionInfoSize = 1;
    information.dwPlatformId = 77;
    EXPECT_EQ(GetVersionExA(&information), 0);
    EXPECT_EQ(information.dwPlatformId, 77U) << "of a structure of another size";
    EXPECT_EQ(GetVersionExA(nullptr), 0);
}

}  // namespace
