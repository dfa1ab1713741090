// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/mutex.h>

#include <future>
#include <thread>

#include <gtest/gtest.h>

namespace {

// Closes its handle.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_Handle(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { CloseHandle(m_Handle); }
    operator HANDLE() const { return m_Handle; }

private:
    HANDLE m_Handle;
};

// What another thread gets, which ends then.
unsigned long WaitElsewhere(HANDLE handle, unsigned long milliseconds = 0) {
    return std::async(std::launch::async, WaitForSingleObject, handle, milliseconds).get();
}

TEST(Mutex, ATakenMutexIsNotTakenByAnotherThread) {
    const Handle mutex(CreateMutexA(nullptr, 0, nullptr));
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_TIMEOUT);
    EXPECT_EQ(WaitElsewhere(mutex, 1), WAIT_TIMEOUT);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_OBJECT_0);
}

TEST(Mutex, ItsOwnerTakesItAgainAndReleasesItAsOften) {
    const Handle mutex(CreateMutexA(nullptr, 1, nullptr));
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_TIMEOUT);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(ReleaseMutex(mutex), 0);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_OBJECT_0);
}

TEST(Mutex, OnlyItsOwnerReleasesIt) {
    const Handle mutex(CreateMutexA(nullptr, 1, nullptr));
    EXPECT_EQ(std::async(std::launch::async, ReleaseMutex, HANDLE(mutex)).get(), 0);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_TIMEOUT);
}

TEST(Mutex, ANameStandsForOneMutexAsLongAsItIsOpen) {
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, "a name"), nullptr);
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, nullptr), nullptr);
    {
        const Handle first(CreateMutexA(nullptr, 1, "a name"));
        const Handle second(CreateMutexA(nullptr, 1, "a name"));
        const Handle third(OpenMutexA(SYNCHRONIZE, 0, "a name"));
        const Handle other(CreateMutexA(nullptr, 0, "A NAME"));
        EXPECT_NE(HANDLE(first), HANDLE(second));
        EXPECT_EQ(WaitElsewhere(third), WAIT_TIMEOUT);
        EXPECT_EQ(WaitElsewhere(other), WAIT_OBJECT_0);
        EXPECT_EQ(ReleaseMutex(third), 1);
        EXPECT_EQ(ReleaseMutex(first), 0) << "an existing mutex is not owned through Create";
    }
    EXPECT_EQ(OpenMutexA(SYNCHRONIZE, 0, "a name"), nullptr);
}

TEST(Mutex, AnEndedOwnerLeavesAnAbandonedMutex) {
    const Handle mutex(CreateMutexA(nullptr, 0, nullptr));
    std::thread(WaitForSingleObject, HANDLE(mutex), 0).join();
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_ABANDONED);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
}

TEST(Mutex, AWaitingThreadGetsItOnceReleased) {
    const Handle mutex(CreateMutexA(nullptr, 1, nullptr));
    auto waiting = std::async(std::launch::async, WaitForSingleObject, HANDLE(mutex), INFINITE);
    EXPECT_EQ(WaitElsewhere(mutex), WAIT_TIMEOUT);
    EXPECT_EQ(ReleaseMutex(mutex), 1);
    const unsigned long result = waiting.get();
    EXPECT_EQ(result, WAIT_OBJECT_0);
}

TEST(Mutex, HandlesThatNameNothingAreTold) {
    const HANDLE closed = CreateMutexA(nullptr, 0, nullptr);
    EXPECT_EQ(CloseHandle(closed), 1);
    for (const HANDLE handle : {HANDLE(nullptr), closed, reinterpret_cast<HANDLE>(~0ULL)}) {
        EXPECT_EQ(WaitForSingleObject(handle, INFINITE), WAIT_FAILED);
        EXPECT_EQ(ReleaseMutex(handle), 0);
        EXPECT_EQ(CloseHandle(handle), 0);
    }
}

}  // namespace
