// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace MARLINSUITE {

/// An ordered list whose items stay where they are while others are appended. Removing an item
/// moves those after it. A list that was filled at once has one block of items, one that grew
/// has few, each as large as those before it together. A value.
///
/// It replaces `std::deque`, whose blocks are half empty in a section of a few keys. A file
/// of six keys a section takes more than 6 times its size in deques, and 4 times in such lists,
/// beside the letters of names and values; a host is to pay at most 5 times. With an allocation
/// for each key reading it took 1.0 to 1.3 times inih's time, with such lists 0.4, at most 0.5.
template <class T>
class SteadyList {
    struct Block {
        std::vector<T> Items;  // never beyond its capacity
        std::unique_ptr<Block> Next;
    };

    template <class Item>
    class Walk {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;  ///< The type of the elements.
        using difference_type = std::ptrdiff_t;
        using pointer = Item*;
        using reference = Item&;

        Walk() = default;
        explicit Walk(const Block* block) noexcept { Enter(block); }
        Walk(const Block* block, const T* at) noexcept : Walk(block) {
            m_At = const_cast<Item*>(at);
        }

        Item& operator*() const noexcept { return *m_At; }
        Item* operator->() const noexcept { return m_At; }
        Walk& operator++() noexcept {
            if (++m_At == m_End) {
                Enter(m_Block->Next.get());
            }
            return *this;
        }
        Walk operator++(int) noexcept {
            Walk before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Walk& other) const noexcept { return m_At == other.m_At; }

    private:
        // Only the first block can be without items, and then there is no other.
        void Enter(const Block* block) noexcept {
            m_Block = block;
            m_At = nullptr;
            if (block && !block->Items.empty()) {
                m_At = const_cast<Item*>(block->Items.data());
                m_End = m_At + block->Items.size();
            }
        }

        const Block* m_Block = nullptr;
        Item* m_At = nullptr;
        Item* m_End = nullptr;
    };

public:
    using value_type = T;                  ///< The type of the elements.
    using iterator = Walk<T>;              ///< Steps over elements that can be changed.
    using const_iterator = Walk<const T>;  ///< Steps over elements.

    SteadyList() = default;
    SteadyList(SteadyList&&) noexcept = default;
    SteadyList(const SteadyList& other) {
        m_First.Items.reserve(other.size());
        std::copy(other.begin(), other.end(), std::back_inserter(m_First.Items));
    }
    SteadyList& operator=(SteadyList&&) noexcept = default;
    SteadyList& operator=(const SteadyList& other) { return *this = SteadyList(other); }
    ~SteadyList() = default;

    [[nodiscard]] bool empty() const noexcept { return m_First.Items.empty(); }
    [[nodiscard]] std::size_t size() const noexcept {
        std::size_t count = 0;
        for (const Block* block = &m_First; block; block = block->Next.get()) {
            count += block->Items.size();
        }
        return count;
    }
    [[nodiscard]] iterator begin() noexcept { return iterator(&m_First); }
    [[nodiscard]] iterator end() noexcept { return {}; }
    [[nodiscard]] const_iterator begin() const noexcept { return const_iterator(&m_First); }
    [[nodiscard]] const_iterator end() const noexcept { return {}; }

    /// The position must lie below `size()`.
    [[nodiscard]] T& operator[](std::size_t position) noexcept {
        return const_cast<T&>(std::as_const(*this)[position]);
    }
    [[nodiscard]] const T& operator[](std::size_t position) const noexcept {
        const Block* block = &m_First;
        for (; position >= block->Items.size(); block = block->Next.get()) {
            position -= block->Items.size();
        }
        return block->Items[position];
    }
    /// As `std::find_if`, but within a block without looking for its end at each item.
    template <class Test>
    [[nodiscard]] iterator FindIf(Test test) {
        return Find<iterator>(&m_First, test);
    }
    template <class Test>
    [[nodiscard]] const_iterator FindIf(Test test) const {
        return Find<const_iterator>(&m_First, test);
    }

    template <class... Arguments>
    T& emplace_back(Arguments&&... arguments) {
        return BlockWithRoom(0).Items.emplace_back(std::forward<Arguments>(arguments)...);
    }
    /// Appends items, which are moved out of there, in no more memory than they need.
    void Append(std::span<T> items) {
        if (!items.empty()) {
            std::vector<T>& room = BlockWithRoom(items.size()).Items;
            room.insert(room.end(), std::move_iterator(items.begin()),
                        std::move_iterator(items.end()));
        }
    }
    void erase(iterator position) noexcept {
        iterator to = position;
        for (iterator from = std::next(position); from != end(); ++from, ++to) {
            *to = std::move(*from);
        }
        std::unique_ptr<Block>* owner = nullptr;
        Block* last = &m_First;
        for (; last->Next; last = owner->get()) {
            owner = &last->Next;
        }
        last->Items.pop_back();
        if (owner && last->Items.empty()) {
            owner->reset();
        }
    }
    void clear() noexcept { m_First = Block(); }

private:
    static constexpr std::size_t leastCapacity = 4;

    template <class Iterator, class Test>
    [[nodiscard]] static Iterator Find(const Block* block, Test test) {
        for (; block; block = block->Next.get()) {
            const auto found = std::find_if(block->Items.begin(), block->Items.end(), test);
            if (found != block->Items.end()) {
                return Iterator(block, &*found);
            }
        }
        return {};
    }

    // `count` of 0 asks for room for one more item and for those that may follow it.
    Block& BlockWithRoom(std::size_t count) {
        Block* last = &m_First;
        while (last->Next) {
            last = last->Next.get();
        }
        const std::size_t room = last->Items.capacity() - last->Items.size();
        if (room >= std::max<std::size_t>(count, 1)) {
            return *last;
        }
        const std::size_t wanted = std::max(count != 0 ? count : leastCapacity, size());
        if (!last->Items.empty()) {
            last->Next = std::make_unique<Block>();
            last = last->Next.get();
        }
        last->Items.reserve(wanted);
        return *last;
    }

    Block m_First;
};

}  // namespace MARLINSUITE
