// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/kernel/detail/kernel_object.h>

#include <bit>
#include <cstdint>
#include <unordered_map>

namespace PLATFORM::detail {

namespace {

// The handles and names of the process. The names are destroyed after the handles, whose objects
// look their names up when they end.
struct KernelObjects {
    std::mutex Lock;
    std::uintptr_t LastHandle = 0;
    std::unordered_map<std::string, std::weak_ptr<KernelObject>> Names;
    std::unordered_map<std::uintptr_t, std::shared_ptr<KernelObject>> Handles;
};

KernelObjects& Objects() {
    return MARLINSUITE::detail::ProcessObject<KernelObjects>();
}

std::uintptr_t ValueOf(HANDLE handle) noexcept {
    return reinterpret_cast<std::uintptr_t>(handle);
}

// Returns the object, so that the caller drops it after the lock: an object with a name takes the
// lock when it ends.
std::shared_ptr<KernelObject> Close(HANDLE handle) {
    KernelObjects& objects = Objects();
    const std::lock_guard lock(objects.Lock);
    auto node = objects.Handles.extract(ValueOf(handle));
    return node ? std::move(node.mapped()) : nullptr;
}

}  // namespace

KernelObject::~KernelObject() {
    if (m_Name.empty()) {
        return;
    }
    KernelObjects& objects = Objects();
    const std::lock_guard lock(objects.Lock);
    const auto found = objects.Names.find(m_Name);
    // Since the last handle was closed, another thread may have given the name to a new object.
    if (found != objects.Names.end() && found->second.expired()) {
        objects.Names.erase(found);
    }
}

HANDLE OpenHandle(std::shared_ptr<KernelObject> object) {
    if (!object) {
        return nullptr;
    }
    KernelObjects& objects = Objects();
    const std::lock_guard lock(objects.Lock);
    const std::uintptr_t value = ++objects.LastHandle;
    objects.Handles.emplace(value, std::move(object));
    return std::bit_cast<HANDLE>(value);
}

std::shared_ptr<KernelObject> ObjectOf(HANDLE handle) {
    KernelObjects& objects = Objects();
    const std::lock_guard lock(objects.Lock);
    const auto found = objects.Handles.find(ValueOf(handle));
    return found == objects.Handles.end() ? nullptr : found->second;
}

std::shared_ptr<KernelObject> NamedObject(const std::string& name,
                                          const std::shared_ptr<KernelObject>& fresh) {
    KernelObjects& objects = Objects();
    const std::lock_guard lock(objects.Lock);
    const auto found = objects.Names.find(name);
    if (found != objects.Names.end()) {
        if (auto object = found->second.lock()) {
            return object;
        }
    }
    if (fresh) {
        objects.Names[name] = fresh;
    }
    return fresh;
}

}  // namespace PLATFORM::detail

unsigned long WaitForSingleObject(HANDLE handle, unsigned long milliseconds) {
    const auto object = PLATFORM::detail::ObjectOf(handle);
    // The contract has 32 bits, so -1 of any width is `INFINITE`.
    return object ? object->Wait(milliseconds & 0xFFFFFFFF) : WAIT_FAILED;
}

int CloseHandle(HANDLE handle) {
    return PLATFORM::detail::Close(handle) ? 1 : 0;
}
