// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cassert>
#include <cstdint>

/// An index that runs round a ring of `range` positions from `start` and wraps at both ends, as
/// over the vertices of a closed figure: start <= position < start + range after every operation.
///
/// The range must be positive and the last position a 32-bit integer; steps may be any `int`. A
/// range that is not positive keeps the position at the start.
///
/// @code
/// CircIterator corner(0, 4, 3);
/// ++corner;
/// assert(*corner == 0);
/// assert(*(corner - 1) == 3);
/// @endcode
class MARLIN_API CircIterator {
public:
    /// At the start of the ring.
    constexpr CircIterator(int start, int range) noexcept
        : m_Start(start), m_Range(range), m_Current(start) {
        assert(range > 0);
    }
    /// At any position, wrapped into the ring.
    constexpr CircIterator(int start, int range, int current) noexcept
        : CircIterator(start, range) {
        m_Current = Wrap(current);
    }

    /// The first position of the ring.
    [[nodiscard]] constexpr int Start() const noexcept { return m_Start; }
    /// The number of positions, at least 1.
    [[nodiscard]] constexpr int Range() const noexcept { return m_Range; }
    /// The position, from start to start + range - 1.
    [[nodiscard]] constexpr int operator*() const noexcept { return m_Current; }

    /// Moves the ring; the position stays if it lies in the new ring and is wrapped into it if not.
    void SetStart(int start) noexcept;
    /// Sizes the ring; the position stays if it lies in the new ring and is wrapped into it if not.
    void SetRange(int range) noexcept;

    /// Moves to the position, wrapped into the ring.
    constexpr CircIterator& operator=(int position) noexcept {
        m_Current = Wrap(position);
        return *this;
    }
    /// So many positions forward.
    constexpr CircIterator& operator+=(int steps) noexcept {
        m_Current = Wrap(std::int64_t{m_Current} + steps);
        return *this;
    }
    /// So many positions back.
    constexpr CircIterator& operator-=(int steps) noexcept {
        m_Current = Wrap(std::int64_t{m_Current} - steps);
        return *this;
    }
    /// A copy so many positions forward.
    [[nodiscard]] constexpr CircIterator operator+(int steps) const noexcept {
        return CircIterator(*this) += steps;
    }
    /// A copy so many positions back.
    [[nodiscard]] constexpr CircIterator operator-(int steps) const noexcept {
        return CircIterator(*this) -= steps;
    }
    /// One step forward, from the last position to the start.
    constexpr CircIterator& operator++() noexcept {
        m_Current = m_Current == Last() ? m_Start : m_Current + 1;
        return *this;
    }
    /// One step back, from the start to the last position.
    constexpr CircIterator& operator--() noexcept {
        m_Current = m_Current == m_Start ? Last() : m_Current - 1;
        return *this;
    }
    /// One step forward; the iterator as it was.
    constexpr CircIterator operator++(int) noexcept {
        const CircIterator before = *this;
        ++*this;
        return before;
    }
    /// One step back; the iterator as it was.
    constexpr CircIterator operator--(int) noexcept {
        const CircIterator before = *this;
        --*this;
        return before;
    }

    /// True when the given position, wrapped into the ring, is the current one.
    [[nodiscard]] constexpr bool operator==(int position) const noexcept {
        return m_Current == Wrap(position);
    }

private:
    [[nodiscard]] constexpr int Last() const noexcept {
        return m_Range > 0 ? static_cast<int>(std::int64_t{m_Start} + m_Range - 1) : m_Start;
    }
    [[nodiscard]] constexpr int Wrap(std::int64_t position) const noexcept {
        assert(m_Range > 0);
        if (m_Range <= 0) {
            return m_Start;
        }
        std::int64_t offset = position - m_Start;
        if (offset < 0) {
            offset = offset % m_Range + m_Range;
        }
        if (offset >= m_Range) {
            offset %= m_Range;
        }
        return static_cast<int>(m_Start + offset);
    }

    int m_Start;
    int m_Range;
    int m_Current;
};
