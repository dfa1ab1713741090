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

inline void SetHandle(CDC& wrapper, void* handle) noexcept {
    wrapper.m_hDC = wrapper.m_hAttribDC = static_cast<HDC>(handle);
}
inline void SetHandle(CGdiObject& wrapper, void* handle) noexcept {
    wrapper.m_hObject = handle;
}

/// Records found by their handles. A handle holds the record's slot (bits 0 to 15), the number of
/// the table (16 to 23) and how often the slot was used before it (24 to 55), so one of a deleted
/// record matches nothing. Up to 65,536 records exist at a time. Slots are used again and never
/// given up, so a pointer to a deleted record or to its wrapper is stale but harmless.
///
/// Tables may be used from any thread, a record from one at a time.
template <typename Record, typename Wrapper, unsigned char Number>
class HandleTable {
public:
    /// Null when the handle names no record of this table.
    [[nodiscard]] Record* Find(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* const slot = SlotOf(handle);
        return slot ? &slot->Content : nullptr;
    }

    /// The wrapper of the slot, which is the table's own; null when the handle names no record.
    [[nodiscard]] Wrapper* WrapperOf(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* const slot = SlotOf(handle);
        return slot ? &slot->Own : nullptr;
    }

    /// The new record's handle, or null when there are too many.
    [[nodiscard]] void* Add(Record&& record) {
        const std::scoped_lock lock(m_Lock);
        if (m_Free.empty() && !Grow()) {
            return nullptr;
        }
        const std::size_t index = m_Free.back();
        m_Free.pop_back();
        Slot& slot = m_Slots[index];
        slot.Content = std::move(record);
        slot.Handle = index | std::uintptr_t{Number} << 16U | std::uintptr_t{++slot.Turn} << 24U;
        void* const handle = reinterpret_cast<void*>(slot.Handle);
        SetHandle(slot.Own, handle);
        return handle;
    }

    bool Remove(const void* handle) noexcept {
        const std::scoped_lock lock(m_Lock);
        Slot* const slot = SlotOf(handle);
        if (!slot) {
            return false;
        }
        slot->Handle = 0;
        slot->Content = Record();
        m_Free.push_back(reinterpret_cast<std::uintptr_t>(handle) & IndexMask);
        return true;
    }

private:
    static constexpr std::uintptr_t IndexMask = 0xFFFF;

    struct Slot {
        std::uintptr_t Handle = 0;  // 0 while free
        std::uint32_t Turn = 0;
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
