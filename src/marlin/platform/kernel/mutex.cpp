// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/kernel_object.h>
#include <marlin/platform/kernel/detail/per_thread.h>
#include <marlin/platform/kernel/mutex.h>

#include <memory>
#include <utility>
#include <vector>

namespace {

class Mutex final : public PLATFORM::detail::KernelObject,
                    public std::enable_shared_from_this<Mutex> {
public:
    using KernelObject::KernelObject;

    [[nodiscard]] unsigned long Wait(unsigned long milliseconds) override;
    [[nodiscard]] bool Release();
    /// Frees the mutex on behalf of its owner, whose thread ends.
    void Abandon();

private:
    const void* m_Owner = nullptr;  // the owner's list of what it holds, null while free
    unsigned long m_Count = 0;
    bool m_Abandoned = false;
};

// The mutexes that a thread owns, abandoned when it ends. The address of the list identifies the
// thread among all that live, also after the system has given its number to another.
struct HeldMutexes {
    std::vector<std::weak_ptr<Mutex>> Mutexes;

    HeldMutexes() = default;
    HeldMutexes(const HeldMutexes&) = delete;
    HeldMutexes& operator=(const HeldMutexes&) = delete;
    ~HeldMutexes() {
        for (const auto& held : Mutexes) {
            if (const auto mutex = held.lock()) {
                mutex->Abandon();
            }
        }
    }

    void Remove(const Mutex* mutex) {
        std::erase_if(Mutexes, [mutex](const std::weak_ptr<Mutex>& held) {
            const auto object = held.lock();
            return !object || object.get() == mutex;
        });
    }
};

unsigned long Mutex::Wait(unsigned long milliseconds) {
    HeldMutexes& self = PLATFORM::detail::PerThread<HeldMutexes>();
    std::unique_lock lock(m_Lock);
    if (m_Owner == &self) {
        ++m_Count;
        return WAIT_OBJECT_0;
    }
    if (!WaitUntil(lock, milliseconds, [this] { return !m_Owner; })) {
        return WAIT_TIMEOUT;
    }
    self.Mutexes.push_back(weak_from_this());
    m_Owner = &self;
    m_Count = 1;
    return std::exchange(m_Abandoned, false) ? WAIT_ABANDONED : WAIT_OBJECT_0;
}

bool Mutex::Release() {
    HeldMutexes& self = PLATFORM::detail::PerThread<HeldMutexes>();
    const std::lock_guard lock(m_Lock);
    if (m_Owner != &self) {
        return false;
    }
    if (--m_Count == 0) {
        m_Owner = nullptr;
        self.Remove(this);
        m_Changed.notify_one();
    }
    return true;
}

void Mutex::Abandon() {
    const std::lock_guard lock(m_Lock);
    m_Owner = nullptr;
    m_Count = 0;
    m_Abandoned = true;
    m_Changed.notify_one();
}

}  // namespace

HANDLE CreateMutexA(const SECURITY_ATTRIBUTES*, int initialOwner, const char* name) {
    const auto fresh = std::make_shared<Mutex>(name ? name : "");
    if (initialOwner != 0) {
        static_cast<void>(fresh->Wait(0));
    }
    if (fresh->Name().empty()) {
        return PLATFORM::detail::OpenHandle(fresh);
    }
    // The fresh one was taken before others can find it by its name.
    auto object = PLATFORM::detail::NamedObject(fresh->Name(), fresh);
    if (object != fresh && initialOwner != 0) {
        static_cast<void>(fresh->Release());
    }
    return PLATFORM::detail::OpenHandle(std::move(object));
}

HANDLE OpenMutexA(unsigned long, int, const char* name) {
    return name && *name
               ? PLATFORM::detail::OpenHandle(PLATFORM::detail::NamedObject(name, nullptr))
               : nullptr;
}

int ReleaseMutex(HANDLE handle) {
    const auto mutex = PLATFORM::detail::ObjectOf<Mutex>(handle);
    return mutex && mutex->Release() ? 1 : 0;
}
