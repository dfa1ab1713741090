// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/runtime/subscriber.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace UTL {

/// The subscribers of one name. While it is walked a leaving subscriber only empties its place,
/// so that the walk's position keeps its meaning; the last walk closes the gaps.
class Context {
public:
    /// Marks a walk for as long as it lives.
    class Walk {
    public:
        explicit Walk(Context& context) noexcept : m_Context(context) { ++context.m_Walks; }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        ~Walk() {
            if (--m_Context.m_Walks == 0 && m_Context.m_HasGaps) {
                m_Context.CloseGaps();
            }
        }

    private:
        Context& m_Context;
    };

    /// The tag is a hash of the name, which tells most other names apart without a look at them.
    Context(const std::string& name, unsigned int tag) : m_Name(name), m_Tag(tag) {}

    [[nodiscard]] const std::string& Name() const noexcept { return m_Name; }
    [[nodiscard]] bool Is(const std::string& name, unsigned int tag) const noexcept {
        return m_Tag == tag && m_Name == name;
    }
    [[nodiscard]] bool IsWalked() const noexcept { return m_Walks > 0; }

    /// The subscribers from the oldest to the newest, with null for gaps.
    [[nodiscard]] const std::vector<Subscriber*>& OldestFirst() const noexcept {
        return m_OldestFirst;
    }

    void Add(Subscriber& newest) { m_OldestFirst.push_back(&newest); }

    void Remove(const Subscriber& subscriber) {
        const auto found = std::find(m_OldestFirst.begin(), m_OldestFirst.end(), &subscriber);
        if (found == m_OldestFirst.end()) {
            return;
        }
        if (IsWalked()) {
            *found = nullptr;
            m_HasGaps = true;
        } else {
            m_OldestFirst.erase(found);
        }
    }

    /// Calls those who are there now, the newest first, as long as they stay.
    void Notify(int message) {
        // Many subscribers do little each: a loop with one call a round costs as much as they do.
#pragma GCC unroll 8
        for (std::size_t place = m_OldestFirst.size(); place-- > 0;) {
            if (Subscriber* const subscriber = m_OldestFirst[place]) {
                subscriber->OnNotify(message);
            }
        }
    }

    std::unique_ptr<Context> Next;  // in the chain of the table's bucket

private:
    void CloseGaps() {
        std::erase(m_OldestFirst, nullptr);
        m_HasGaps = false;
    }

    std::string m_Name;
    std::vector<Subscriber*> m_OldestFirst;
    unsigned int m_Tag;
    unsigned int m_Walks = 0;
    bool m_HasGaps = false;
};

}  // namespace UTL
