// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <type_traits>
#include <utility>

namespace PLATFORM {

enum class OBJECT_KIND : unsigned char { NONE = 0, CONTEXT = 1, FONT = 2, BRUSH = 3, BITMAP = 4 };

/// The objects of one kind, found by handles that are checked without a lock. A handle holds
/// the slot (bits 0 to 15), the kind (16 to 23) and the turn of the slot's use (24 to 55), so a
/// stale one does not match. Slots live for the process and are used again; up to 65,536 objects
/// exist at a time. Adding and removing is safe from any thread, an object from one at a time.
///
/// The slot that a thread gave back last is kept for it, so that making and deleting one object
/// after the other costs no synchronisation.
///
/// Each slot carries the wrapper that stands for the object where a caller has attached none.
template <typename Record, typename Wrapper, typename AttachedWrapper, OBJECT_KIND Kind>
class HandleTable {
public:
    struct Slot {
        std::atomic<std::uintptr_t> Handle{0};
        std::atomic<std::uint32_t> NextFree{0};
        std::uint32_t Turn = 0;
        AttachedWrapper* Attached = nullptr;
        Wrapper Temporary;
        Record Content;
    };

    /// Null when the handle names no object of this table.
    [[nodiscard]] Slot* Find(const void* handle) const noexcept {
        const auto value = reinterpret_cast<std::uintptr_t>(handle);
        if (KindOf(handle) != Kind) {
            return nullptr;
        }
        Slot* slot = SlotAt(value & IndexMask);
        return slot && slot->Handle.load(std::memory_order_acquire) == value ? slot : nullptr;
    }

    [[nodiscard]] Record* Content(const void* handle) const noexcept {
        Slot* slot = Find(handle);
        return slot ? &slot->Content : nullptr;
    }

    /// The new object's handle, or null when there are too many objects.
    [[nodiscard]] void* Add(Record&& record) {
        std::uintptr_t index = 0;
        Slot* slot = TakeKept(index);
        if (!slot) {
            slot = TakeFree(index);
        }
        if (!slot) {
            return nullptr;
        }
        slot->Content = std::move(record);
        const std::uintptr_t kind = static_cast<unsigned char>(Kind);
        const std::uintptr_t handle = index | kind << 16U | std::uintptr_t{++slot->Turn} << 24U;
        slot->Handle.store(handle, std::memory_order_release);
        return reinterpret_cast<void*>(handle);
    }

    bool Remove(const void* handle) noexcept {
        Slot* slot = Find(handle);
        if (!slot) {
            return false;
        }
        slot->Handle.store(0, std::memory_order_relaxed);
        slot->Attached = nullptr;
        if constexpr (!std::is_trivially_destructible_v<Record>) {
            slot->Content = Record();
        }
        const std::uintptr_t index = reinterpret_cast<std::uintptr_t>(handle) & IndexMask;
        if (!Keep(index)) {
            GiveBack(*slot, index);
        }
        return true;
    }

    /// How many objects satisfy the condition; while other threads add or remove, about as many.
    template <typename Condition>
    [[nodiscard]] std::size_t CountIf(Condition condition) const {
        std::size_t count = 0;
        for (std::size_t i = 0; SlotAt(i); ++i) {
            const Slot& slot = *SlotAt(i);
            const bool live = slot.Handle.load(std::memory_order_acquire) != 0;
            count += live && condition(slot.Content) ? 1U : 0U;
        }
        return count;
    }

    [[nodiscard]] static OBJECT_KIND KindOf(const void* handle) noexcept {
        const auto value = reinterpret_cast<std::uintptr_t>(handle);
        return static_cast<OBJECT_KIND>(value >> 16U & 0xFFU);
    }

private:
    static constexpr std::size_t BlockSize = 64;
    static constexpr std::size_t MaxBlocks = 1024;
    static constexpr std::uintptr_t IndexMask = 0xFFFF;
    static_assert(BlockSize * MaxBlocks == IndexMask + 1 && sizeof(std::uintptr_t) == 8);
    using Block = std::array<Slot, BlockSize>;

    [[nodiscard]] Slot* SlotAt(std::size_t index) const noexcept {
        if (index > IndexMask) {
            return nullptr;
        }
        Block* block = m_Blocks[index / BlockSize].load(std::memory_order_acquire);
        return block ? &(*block)[index % BlockSize] : nullptr;
    }

    // The head of the free list is the index + 1 of a slot, 0 for none, and above it a count of
    // the changes, without which a slot taken and given back meanwhile would go unnoticed.
    static constexpr std::uint64_t Head(std::uint64_t previous, std::uint32_t indexPlus1) noexcept {
        return ((previous >> 32U) + 1) << 32U | indexPlus1;
    }

    // What a thread keeps. Nothing more is kept once the thread's own objects are going.
    struct Kept {
        std::uint32_t IndexPlus1 = 0;
        bool Returns = false;
        bool Ended = false;
    };

    struct Returner {
        HandleTable* Table;

        explicit Returner(HandleTable* table) noexcept : Table(table) {}
        Returner(const Returner&) = delete;
        Returner& operator=(const Returner&) = delete;
        ~Returner() {
            std::uintptr_t index = 0;
            if (Slot* slot = Table->TakeKept(index)) {
                Table->GiveBack(*slot, index);
            }
            t_Kept.Ended = true;
        }
    };

    Slot* TakeKept(std::uintptr_t& index) noexcept {
        if (t_Kept.IndexPlus1 == 0) {
            return nullptr;
        }
        index = std::exchange(t_Kept.IndexPlus1, 0U) - 1;
        return SlotAt(index);
    }

    bool Keep(std::uintptr_t index) noexcept {
        if (t_Kept.IndexPlus1 != 0 || t_Kept.Ended) {
            return false;
        }
        if (!t_Kept.Returns) {
            static thread_local const Returner returner(this);
            t_Kept.Returns = returner.Table == this;
        }
        t_Kept.IndexPlus1 = static_cast<std::uint32_t>(index + 1);
        return true;
    }

    Slot* TakeFree(std::uintptr_t& index) {
        std::uint64_t head = m_Free.load(std::memory_order_acquire);
        for (;;) {
            index = (head - 1) & IndexMask;
            Slot* slot = static_cast<std::uint32_t>(head) != 0 ? SlotAt(index) : nullptr;
            if (!slot) {
                if (!Grow()) {
                    return nullptr;
                }
                head = m_Free.load(std::memory_order_acquire);
                continue;
            }
            const auto next = slot->NextFree.load(std::memory_order_relaxed);
            if (m_Free.compare_exchange_weak(head, Head(head, next), std::memory_order_acq_rel)) {
                return slot;
            }
        }
    }

    void GiveBack(Slot& slot, std::uintptr_t index) noexcept {
        const auto indexPlus1 = static_cast<std::uint32_t>(index + 1);
        std::uint64_t head = m_Free.load(std::memory_order_relaxed);
        do {
            slot.NextFree.store(static_cast<std::uint32_t>(head), std::memory_order_relaxed);
        } while (
            !m_Free.compare_exchange_weak(head, Head(head, indexPlus1), std::memory_order_acq_rel));
    }

    bool Grow() {
        const std::scoped_lock lock(m_Growing);
        if (static_cast<std::uint32_t>(m_Free.load(std::memory_order_acquire)) != 0) {
            return true;
        }
        if (m_BlockCount == MaxBlocks) {
            return false;
        }
        // Blocks outlive every static object that may still draw when the process ends.
        Block& block = *std::make_unique<Block>().release();
        m_Blocks[m_BlockCount].store(&block, std::memory_order_release);
        const std::size_t first = m_BlockCount++ * BlockSize;
        for (std::size_t i = BlockSize; i > 0; --i) {
            GiveBack(block[i - 1], first + i - 1);
        }
        return true;
    }

    [[gnu::tls_model("initial-exec")]] static inline constinit thread_local Kept t_Kept{};

    std::array<std::atomic<Block*>, MaxBlocks> m_Blocks{};
    std::atomic<std::uint64_t> m_Free{0};
    std::mutex m_Growing;
    std::size_t m_BlockCount = 0;
};

}  // namespace PLATFORM
