// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/worker.h>
#include <marlin/platform/kernel/win_thread.h>

#include <utility>

using PLATFORM::detail::ObjectOf;
using PLATFORM::detail::Worker;

CWinThread::CWinThread(std::shared_ptr<Worker> worker)
    : m_hThread(PLATFORM::detail::OpenHandle(worker)), m_Worker(std::move(worker)) {}

CWinThread::~CWinThread() {
    m_Worker->Finish();
    CloseHandle(m_hThread);
}

CWinThread* AfxBeginThread(AFX_THREADPROC procedure, void* parameter, int priority, unsigned int,
                           unsigned long flags, SECURITY_ATTRIBUTES*) {
    if (!procedure) {
        return nullptr;
    }
    // The worker deletes itself, unless the caller clears `m_bAutoDelete` and owns it.
    CWinThread* const result = Worker::Create(procedure, parameter, priority).release();
    if (result && (flags & CREATE_SUSPENDED) == 0) {
        ResumeThread(result->m_hThread);
    }
    return result;
}

unsigned long ResumeThread(HANDLE handle) {
    const auto worker = ObjectOf<Worker>(handle);
    if (!worker) {
        return 0xFFFFFFFF;
    }
    return worker->Resume() ? 1 : 0;
}

int GetExitCodeThread(HANDLE handle, unsigned long* code) {
    const auto worker = ObjectOf<Worker>(handle);
    if (!worker || !code) {
        return 0;
    }
    *code = worker->ExitCode();
    return 1;
}
