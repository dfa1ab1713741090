// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_gdi_object.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <utility>
#include <vector>

namespace PLATFORM::detail {

enum class OBJECT_KIND : unsigned char { CONTEXT = 1, FONT, BRUSH, BITMAP };

inline void SetHandle(CDC& wrapper, void* handle) noexcept {
    wrapper.m_hDC = wrapper.m_hAttribDC = static_cast<HDC>(handle);
}
inline void SetHandle(CGdiObject& wrapper, void* handle) noexcept {
    wrapper.m_hObject = handle;
}

/// The objects of one kind, found by their handles. A handle holds the object's slot (bits 0 to
/// 15), its kind (16 to 23) and how often the slot was used before it (24 to 55), so one of a
/// deleted object matches nothing. Up to 65,536 objects exist at a time. Slots are used again and
/// never given up, so a pointer to a deleted object or to its wrapper is stale but harmless.
///
/// Each slot carries the wrapper that a caller has attached to the object, and one of its own
/// that takes its place until then.
///
/// Tables may be used from any thread, an object from one at a time.
template <typename Record, typename Wrapper, typename AttachedWrapper, OBJECT_KIND Kind>
class HandleTable {
public:
    /// Null when the handle names no object of this table.
    [[nodiscard]] Record* Find(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* slot = SlotOf(handle);
        return slot ? &slot->Content : nullptr;
    }

    /// The attached wrapper or the slot's own; null when the handle names no object.
    [[nodiscard]] AttachedWrapper* WrapperOf(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* slot = SlotOf(handle);
        if (!slot) {
            return nullptr;
        }
        return slot->Attached ? slot->Attached : &slot->Own;
    }

    /// False when the handle names no object.
    bool Attach(const void* handle, AttachedWrapper* wrapper) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* slot = SlotOf(handle);
        if (slot) {
            slot->Attached = wrapper;
        }
        return slot != nullptr;
    }

    /// Nothing happens where another wrapper is attached.
    void Detach(const void* handle, const AttachedWrapper* wrapper) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* slot = SlotOf(handle);
        if (slot && slot->Attached == wrapper) {
            slot->Attached = nullptr;
        }
    }

    /// The new object's handle, or null when there are too many objects.
    [[nodiscard]] void* Add(Record&& record) {
        const std::scoped_lock lock(m_Lock);
        if (m_Free.empty() && !Grow()) {
            return nullptr;
        }
        const std::size_t index = m_Free.back();
        m_Free.pop_back();
        Slot& slot = m_Slots[index];
        slot.Content = std::move(record);
        slot.Handle = index | std::uintptr_t{static_cast<unsigned char>(Kind)} << 16U |
                      std::uintptr_t{++slot.Turn} << 24U;
        void* const handle = reinterpret_cast<void*>(slot.Handle);
        SetHandle(slot.Own, handle);
        return handle;
    }

    bool Remove(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* slot = SlotOf(handle);
        if (!slot) {
            return false;
        }
        slot->Handle = 0;
        slot->Attached = nullptr;
        slot->Content = Record();
        m_Free.push_back(reinterpret_cast<std::uintptr_t>(handle) & IndexMask);
        return true;
    }

    /// How many objects satisfy the condition.
    template <typename Condition>
    [[nodiscard]] std::size_t CountIf(Condition condition) {
        const std::scoped_lock lock(m_Lock);
        std::size_t count = 0;
        for (const Slot& slot : m_Slots) {
            count += slot.Handle != 0 && condition(slot.Content) ? 1U : 0U;
        }
        return count;
    }

private:
    static constexpr std::uintptr_t IndexMask = 0xFFFF;

    struct Slot {
        std::uintptr_t Handle = 0;  // 0 while free
        std::uint32_t Turn = 0;
        AttachedWrapper* Attached = nullptr;
        Wrapper Own;
        Record Content;
    };

    [[nodiscard]] Slot* SlotOf(const void* handle) noexcept {
        const auto value = reinterpret_cast<std::uintptr_t>(handle);
        const std::size_t index = value & IndexMask;
        return value != 0 && index < m_Slots.size() && m_Slots[index].Handle == value
                   ? &m_Slots[index]
                   : nullptr;
    }

    bool Grow() {
        if (m_Slots.size() > IndexMask) {
            return false;
        }
        m_Slots.emplace_back();
        if (m_Free.capacity() < m_Slots.size()) {
            m_Free.reserve(2 * m_Slots.size());  // so that giving a slot back cannot fail
        }
        m_Free.push_back(m_Slots.size() - 1);
        return true;
    }

    std::mutex m_Lock;
    std::deque<Slot> m_Slots;  // which moves none of them when it grows
    std::vector<std::size_t> m_Free;
};

}  // namespace PLATFORM::detail
