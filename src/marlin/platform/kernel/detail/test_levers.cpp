// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/version.h>

#include <atomic>

namespace PLATFORM::detail {

namespace {

constinit std::atomic<unsigned int> workerLimit{NoWorkerLimit};
constinit std::atomic<bool> workersHeld{false};
constinit std::atomic<MillisecondClock> replacedClock{nullptr};
constinit std::atomic<bool> unnamedFiles{true};
constinit std::atomic<unsigned int> platformId{VER_PLATFORM_WIN32_NT};

}  // namespace

void SetWorkerLimit(unsigned int most) noexcept {
    workerLimit = most;
}

unsigned int WorkerLimit() noexcept {
    return workerLimit;
}

void HoldWorkers(bool hold) noexcept {
    workersHeld = hold;
    workersHeld.notify_all();
}

void AwaitRelease() noexcept {
    workersHeld.wait(true);
}

void SetMillisecondClock(MillisecondClock clock) noexcept {
    replacedClock = clock;
}

MillisecondClock ReplacedClock() noexcept {
    return replacedClock;
}

void AllowUnnamedFiles(bool allow) noexcept {
    unnamedFiles = allow;
}

bool AreUnnamedFilesAllowed() noexcept {
    return unnamedFiles;
}

void SetPlatformId(unsigned int id) noexcept {
    platformId = id;
}

unsigned int PlatformId() noexcept {
    return platformId;
}

}  // namespace PLATFORM::detail
