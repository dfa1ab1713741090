// SPDX-License-Identifier: MIT
#include <marlin/geometry/circ_iterator.h>

#include <array>
#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(CircIterator, WrapsEveryPositionIntoTheRing) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    // Start, range, position, and that in the ring. 2147483647 = 3 * 715827882 + 1; the last
    // position lies 4294967293 = 3 * 1431655765 - 2 before its start.
    const std::array<int, 4> cases[] = {
        {10, 5, 17, 12}, {10, 5, 10, 10},  {10, 5, 14, 14}, {10, 5, 15, 10},
        {10, 5, 9, 14},  {10, 5, 5, 10},   {10, 5, 4, 14},  {10, 5, 0, 10},
        {0, 3, most, 1}, {0, 3, least, 1}, {3, 1, 99, 3},   {most - 2, 3, least, most}};
    for (const auto& [start, range, position, wrapped] : cases) {
        CircIterator ring(start, range);
        EXPECT_EQ(*ring, start);
        EXPECT_EQ(*CircIterator(start, range, position), wrapped) << position;
        EXPECT_EQ(*(ring = position), wrapped) << position;
        EXPECT_TRUE(ring == position) << position;
        EXPECT_EQ(ring == wrapped - 1, range == 1) << position;
        EXPECT_EQ(*(ring + most - most), wrapped) << position;
        EXPECT_EQ(*(ring - most), *(ring + -most)) << position;
        EXPECT_EQ(*ring++, wrapped);
        EXPECT_EQ(*ring, wrapped - start == range - 1 ? start : wrapped + 1) << position;
        EXPECT_EQ(*--ring, wrapped) << position;
        EXPECT_EQ(*ring--, wrapped);
        EXPECT_EQ(*++ring, wrapped) << position;
    }
    CircIterator ring(10, 5, 17);
    EXPECT_EQ(*(ring += 4), 11);
    EXPECT_EQ(*(ring -= 3), 13);
    EXPECT_EQ(*--CircIterator(least, most), -2);
}

TEST(CircIterator, KeepsItsPositionInAChangedRingWhereItCan) {
    CircIterator ring(10, 5, 12);
    ring.SetStart(11);
    EXPECT_EQ(*ring, 12);
    ring.SetStart(20);
    EXPECT_EQ(*ring, 22);
    ring.SetRange(20);
    EXPECT_EQ(*ring, 22);
    ring.SetRange(2);
    EXPECT_EQ(*ring, 20);
    EXPECT_EQ(ring.Start(), 20);
    EXPECT_EQ(ring.Range(), 2);
}

}  // namespace
