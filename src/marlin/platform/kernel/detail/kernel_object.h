// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/waiting.h>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

namespace PLATFORM::detail {

/// An object that handles name and that can be waited for. It lives as long as a handle or a
/// waiting thread has it. Objects with a name are found by it.
class KernelObject {
public:
    explicit KernelObject(std::string name = {}) : m_Name(std::move(name)) {}
    KernelObject(const KernelObject&) = delete;
    KernelObject& operator=(const KernelObject&) = delete;
    virtual ~KernelObject();

    [[nodiscard]] const std::string& Name() const noexcept { return m_Name; }

    /// As `WaitForSingleObject`.
    [[nodiscard]] virtual unsigned long Wait(unsigned long milliseconds) = 0;

protected:
    /// Waits under the lock until the predicate holds; false when the time ran out.
    template <typename Predicate>
    bool WaitUntil(std::unique_lock<std::mutex>& lock, unsigned long milliseconds,
                   Predicate predicate) {
        if (milliseconds == INFINITE) {
            m_Changed.wait(lock, predicate);
            return true;
        }
        return m_Changed.wait_for(lock, std::chrono::milliseconds(milliseconds), predicate);
    }

    std::mutex m_Lock;
    std::condition_variable m_Changed;

private:
    const std::string m_Name;
};

/// A new handle of the object.
[[nodiscard]] HANDLE OpenHandle(std::shared_ptr<KernelObject> object);

/// The object of the handle, or none.
[[nodiscard]] std::shared_ptr<KernelObject> ObjectOf(HANDLE handle);

template <typename Object>
[[nodiscard]] std::shared_ptr<Object> ObjectOf(HANDLE handle) {
    return std::dynamic_pointer_cast<Object>(ObjectOf(handle));
}

/// The object that has the name; where there is none, `fresh`, which has the name from then on.
[[nodiscard]] std::shared_ptr<KernelObject> NamedObject(const std::string& name,
                                                        const std::shared_ptr<KernelObject>& fresh);

}  // namespace PLATFORM::detail
