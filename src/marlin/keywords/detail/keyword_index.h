// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/keywords/detail/keyword_scanner.h>
#include <marlin/keywords/detail/name_words.h>
#include <marlin/keywords/keyword.h>

#include <bit>
#include <cstddef>
#include <deque>
#include <vector>

namespace MARLINSUITE {

/// Look-ups by name while one operation runs over a table, which only grows meanwhile: names may
/// change between operations, through the pointers that hosts hold, and never within one. The
/// first few look-ups walk the table, so that short texts do not pay for an index of a large one.
class KeywordIndex {
public:
    explicit KeywordIndex(const std::deque<CKeyword>& keywords) noexcept : m_Keywords(keywords) {}

    /// The first keyword of that name, or null.
    [[nodiscard]] const CKeyword* Find(const ScannedName& name) {
        if (m_Slots.empty()) {
            if (m_Walks < MaxWalks) {
                ++m_Walks;
                return Walk(name.Text);
            }
            IndexAll();
        }
        return SlotOf(name).Keyword;
    }

    /// To be called after a keyword, whose name was looked for in vain, was put at the end.
    void AddLast(const ScannedName& name) {
        if (m_Slots.empty()) {
            return;
        }
        SlotOf(name) = {&m_Keywords.back(), name.Hash};
        if (2 * ++m_Used > m_Slots.size()) {
            IndexAll();
        }
    }

private:
    struct Slot {
        const CKeyword* Keyword = nullptr;
        unsigned int Hash = 0;
    };

    static constexpr int MaxWalks = 8;

    [[nodiscard]] const CKeyword* Walk(std::string_view name) const noexcept {
        for (const CKeyword& keyword : m_Keywords) {
            if (keyword.m_Key == name) {
                return &keyword;
            }
        }
        return nullptr;
    }

    // The keyword of that name, or the empty slot where it would stand.
    [[nodiscard]] Slot& SlotOf(const ScannedName& name) noexcept {
        std::size_t position = name.Hash & (m_Slots.size() - 1);
        for (;;) {
            Slot& slot = m_Slots[position];
            if (!slot.Keyword ||
                (slot.Hash == name.Hash && SameWords(slot.Keyword->m_Key, name.Text))) {
                return slot;
            }
            position = (position + 1) & (m_Slots.size() - 1);
        }
    }

    // Of several keywords of one name the first alone.
    void IndexAll() {
        m_Slots.assign(std::bit_ceil(4 * (m_Keywords.size() + 16)), {});
        m_Used = 0;
        for (const CKeyword& keyword : m_Keywords) {
            const ScannedName name = {keyword.m_Key, HashOfWords(keyword.m_Key)};
            if (Slot& slot = SlotOf(name); !slot.Keyword) {
                slot = {&keyword, name.Hash};
                ++m_Used;
            }
        }
    }

    const std::deque<CKeyword>& m_Keywords;
    std::vector<Slot> m_Slots;  // a power of two, at most half of them in use
    std::size_t m_Used = 0;
    int m_Walks = 0;
};

}  // namespace MARLINSUITE
