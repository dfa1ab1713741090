// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/runtime/thread_object.h>

#include <atomic>
#include <functional>
#include <semaphore>
#include <thread>
#include <utility>
#include <vector>

/// Returns one result after the other; the last must end the run.
class ScriptedWork : public ThreadObject {
public:
    explicit ScriptedWork(std::vector<int> results) : m_Results(std::move(results)) {}

    std::atomic<int> Calls{0};
    std::atomic<std::thread::id> CalledOn{};

    int Execute(const bool&) override {
        CalledOn = std::this_thread::get_id();
        return m_Results.at(static_cast<std::size_t>(Calls++));
    }

private:
    std::vector<int> m_Results;
};

class FunctionWork : public ThreadObject {
public:
    explicit FunctionWork(std::function<int(const bool&)> step) : m_Step(std::move(step)) {}

    int Execute(const bool& keepRunning) override { return m_Step(keepRunning); }

private:
    std::function<int(const bool&)> m_Step;
};

/// Asks to be called again for ever, and tells of its first call.
class EndlessWork : public ThreadObject {
public:
    std::binary_semaphore Called{0};

    int Execute(const bool&) override {
        if (!std::exchange(m_Told, true)) {
            Called.release();
        }
        return 1;
    }

private:
    bool m_Told = false;
};

/// One long step, which ends when it shall.
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

/// A window of the test's thread.
class Caller : public CWnd {
public:
    std::thread::id HandledOn;

    Caller() { Create(); }

    /// Waits for one message and lets it be handled.
    MSG AwaitMessage() {
        MSG message;
        GetMessageA(&message, GetSafeHwnd(), 0, 0);
        DispatchMessageA(&message);
        return message;
    }

    [[nodiscard]] bool HasMessage() const {
        MSG message;
        return PeekMessageA(&message, GetSafeHwnd(), 0, 0, PM_NOREMOVE) != 0;
    }

    LRESULT WindowProc(unsigned int, WPARAM, LPARAM) override {
        HandledOn = std::this_thread::get_id();
        return 0;
    }
};
