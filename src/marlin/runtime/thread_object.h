// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <atomic>

/// A piece of work that a `Thread` runs on a worker. It must live until the run has ended.
class MARLIN_API ThreadObject {
public:
    ThreadObject() noexcept = default;
    ThreadObject(const ThreadObject&) noexcept = default;
    ThreadObject& operator=(const ThreadObject&) noexcept = default;

    /// Reads the flag that `Execute` is given, safely while another thread clears it: true as long
    /// as the work may go on.
    [[nodiscard]] static bool ShallGoOn(const bool& keepRunning) noexcept {
        return std::atomic_ref<bool>(const_cast<bool&>(keepRunning)).load();
    }

    /// One step of the work, or all of it. 0 ends the run with exit code 0, 2 with exit code 1;
    /// after any other value it is called again unless the run is to stop. Long steps poll
    /// `ShallGoOn(keepRunning)`. An exception ends the run as if it had been stopped.
    virtual int Execute(const bool& keepRunning) = 0;

protected:
    /// A hook for derived classes; it does nothing, and the library never calls it.
    virtual void CancelFunction();

public:
    virtual ~ThreadObject();
};
