// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/mutex.h>
#include <marlin/platform/kernel/win_thread.h>
#include <marlin/platform/kernel/worker_control.h>

#include <algorithm>
#include <atomic>
#include <vector>

#include <gtest/gtest.h>
#include <support/workers.h>
#include <sys/resource.h>

namespace {

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

TEST(WinThread, ASuspendedWorkerRunsOnceResumed) {
    Work work;
    const auto thread = Suspended(work);
    unsigned long code = 0;
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, 0), WAIT_TIMEOUT);
    EXPECT_EQ(GetExitCodeThread(thread->m_hThread, &code), 1);
    EXPECT_EQ(code, STILL_ACTIVE);
    EXPECT_EQ(ResumeThread(thread->m_hThread), 1U);
    EXPECT_EQ(ResumeThread(thread->m_hThread), 0U);
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(GetExitCodeThread(thread->m_hThread, &code), 1);
    EXPECT_EQ(code, 4000000000U);
    EXPECT_EQ(work.Calls, 1);
    EXPECT_EQ(work.Self, thread.get());
    EXPECT_EQ(AfxGetThread(), nullptr);
}

TEST(WinThread, AWorkerThatIsDeletedSuspendedEndsWithoutRunning) {
    Work work;
    Suspended(work).reset();
    EXPECT_EQ(work.Calls, 0);
}

TEST(WinThread, AWorkerThatNobodyOwnsDeletesItself) {
    Work work;
    ASSERT_NE(AfxBeginThread(&Record, &work), nullptr);
    AwaitNoWorkers();
    EXPECT_EQ(work.Calls, 1);
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

TEST(WinThread, NoMoreWorkersAreMadeThanTheLimitAllows) {
    Work work;
    EXPECT_EQ(AfxBeginThread(nullptr, &work), nullptr);
    PLATFORM::SetWorkerLimit(0);
    EXPECT_EQ(Suspended(work), nullptr);
    PLATFORM::SetWorkerLimit(PLATFORM::NoWorkerLimit);
    EXPECT_NE(Suspended(work), nullptr);
}

TEST(WinThread, HeldWorkersBeginOnceLetGo) {
    Work work;
    PLATFORM::HoldWorkers(true);
    const auto thread = Suspended(work);
    ResumeThread(thread->m_hThread);
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, 1), WAIT_TIMEOUT);
    EXPECT_EQ(work.Calls, 0);
    PLATFORM::HoldWorkers(false);
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(work.Calls, 1);
}

TEST(WinThread, HandlesOfNoWorkerAreTold) {
    const HANDLE mutex = CreateMutexA(nullptr, 0, nullptr);
    unsigned long code = 5;
    for (const HANDLE handle : {HANDLE(nullptr), mutex}) {
        EXPECT_EQ(ResumeThread(handle), 0xFFFFFFFFU);
        EXPECT_EQ(GetExitCodeThread(handle, &code), 0);
    }
    EXPECT_EQ(code, 5U);
    CloseHandle(mutex);
}

}  // namespace
