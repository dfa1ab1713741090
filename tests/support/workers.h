// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/win_thread.h>

#include <memory>
#include <thread>

/// Waits until the process has no worker: then, and not before, one fits under a limit of one.
inline void AwaitNoWorkers() {
    PLATFORM::detail::SetWorkerLimit(1);
    CWinThread* only = nullptr;
    while (!only) {
        std::this_thread::yield();
        only = AfxBeginThread([](void*) { return 0U; }, nullptr, 0, 0, CREATE_SUSPENDED);
    }
    only->m_bAutoDelete = false;
    const std::unique_ptr<CWinThread> owner(only);
    PLATFORM::detail::SetWorkerLimit(PLATFORM::detail::NoWorkerLimit);
}
