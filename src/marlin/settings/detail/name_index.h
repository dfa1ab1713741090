// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace MARLINSUITE {

/// Positions found by the hash of a name, for names that only come in: open addressing, the
/// hash beside the position, at most half full. Made for one pass over a file, so that finding
/// a second section of one name costs the same in a file of any size.
class NameIndex {
public:
    /// The first position entered under that hash for which `isSame(position)` holds, or -1.
    template <class Same>
    [[nodiscard]] std::ptrdiff_t Find(unsigned int hash, Same isSame) const {
        if (m_Slots.empty()) {
            return -1;
        }
        for (std::size_t slot = Home(hash); m_Slots[slot].IsUsed(); slot = Next(slot)) {
            if (m_Slots[slot].Hash == hash && isSame(m_Slots[slot].Position())) {
                return static_cast<std::ptrdiff_t>(m_Slots[slot].Position());
            }
        }
        return -1;
    }

    void Add(unsigned int hash, std::size_t position) {
        if (2 * (m_Count + 1) > m_Slots.size()) {
            Grow();
        }
        Put({hash, static_cast<std::uint32_t>(position + 1)});
        ++m_Count;
    }

private:
    struct Slot {
        std::uint32_t Hash = 0;
        std::uint32_t Behind = 0;  // the position + 1; a list of sections is counted by an int

        [[nodiscard]] bool IsUsed() const noexcept { return Behind != 0; }
        [[nodiscard]] std::size_t Position() const noexcept { return Behind - 1; }
    };

    [[nodiscard]] std::size_t Home(unsigned int hash) const noexcept {
        return hash & (m_Slots.size() - 1);
    }
    [[nodiscard]] std::size_t Next(std::size_t slot) const noexcept {
        return (slot + 1) & (m_Slots.size() - 1);
    }

    void Put(const Slot& entry) {
        std::size_t slot = Home(entry.Hash);
        while (m_Slots[slot].IsUsed()) {
            slot = Next(slot);
        }
        m_Slots[slot] = entry;
    }

    void Grow() {
        std::vector<Slot> old(m_Slots.empty() ? 64 : 2 * m_Slots.size());
        old.swap(m_Slots);
        for (const Slot& entry : old) {
            if (entry.IsUsed()) {
                Put(entry);
            }
        }
    }

    std::vector<Slot> m_Slots;
    std::size_t m_Count = 0;
};

}  // namespace MARLINSUITE
