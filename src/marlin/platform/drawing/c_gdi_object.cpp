// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_gdi_object.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <atomic>
#include <cassert>
#include <mutex>
#include <utility>

namespace {

using namespace PLATFORM;

// Calls the operation with the slot of the handle's object, if there is one.
template <typename Operation>
void WithSlot(HGDIOBJ handle, Operation operation) noexcept {
    if (auto* font = Fonts.Find(handle)) {
        operation(*font);
    } else if (auto* brush = Brushes.Find(handle)) {
        operation(*brush);
    } else if (auto* bitmap = Bitmaps.Find(handle)) {
        operation(*bitmap);
    }
}

// Threads share the stock objects, whose wrappers the first of them fills in.
void NameOnce(HGDIOBJ& target, HGDIOBJ handle) noexcept {
    static constinit std::mutex naming;
    const std::atomic_ref<HGDIOBJ> held(target);
    if (held.load(std::memory_order_acquire) == handle) {
        return;
    }
    const std::scoped_lock lock(naming);
    if (held.load(std::memory_order_relaxed) != handle) {
        held.store(handle, std::memory_order_release);
    }
}

}  // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) noexcept {
    CGdiObject* result = nullptr;
    WithSlot(handle, [&](auto& slot) {
        NameOnce(slot.Temporary.m_hObject, handle);
        result = slot.Attached ? slot.Attached : &slot.Temporary;
    });
    return result;
}

HGDIOBJ CGdiObject::GetSafeHandle() const noexcept {
    return m_hObject;
}

bool CGdiObject::Attach(HGDIOBJ handle) noexcept {
    assert(!m_hObject);
    bool found = false;
    WithSlot(handle, [&](auto& slot) {
        slot.Attached = this;
        found = true;
    });
    if (found) {
        m_hObject = handle;
    }
    return found;
}

HGDIOBJ CGdiObject::Detach() noexcept {
    WithSlot(m_hObject, [&](auto& slot) {
        if (slot.Attached == this) {
            slot.Attached = nullptr;
        }
    });
    return std::exchange(m_hObject, nullptr);
}

bool CGdiObject::DeleteObject() noexcept {
    return m_hObject && ::DeleteObject(Detach()) != 0;
}

bool CGdiObject::CreateStockObject(int index) noexcept {
    m_hObject = ::GetStockObject(index);
    return m_hObject != nullptr;
}
