// SPDX-License-Identifier: MIT
#include <marlin/geometry/circ_iterator.h>

#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace {

constexpr int LARGEST = std::numeric_limits<int>::max();
constexpr int SMALLEST = std::numeric_limits<int>::min();

TEST(CircIterator, StartsAtTheStartOrAtAWrappedPosition) {
    CircIterator assigned(10, 5);
    EXPECT_EQ(*assigned, 10);
    const std::pair<int, int> cases[] = {{17, 12}, {10, 10}, {14, 14}, {15, 10}, {9, 14},
                                         {5, 10},  {4, 14},  {0, 10},  {-1, 14}};
    for (const auto& [position, expected] : cases) {
        EXPECT_EQ(*CircIterator(10, 5, position), expected) << position;
        EXPECT_EQ(*(assigned = position), expected) << position;
        EXPECT_TRUE(assigned == position + 5) << position;
        EXPECT_FALSE(assigned == position + 1) << position;
    }
}

TEST(CircIterator, MovesBySteps) {
    CircIterator ring(10, 5, 17);
    EXPECT_EQ(*(ring += 4), 11);
    EXPECT_EQ(*(ring -= 3), 13);
    EXPECT_EQ(*(ring + 2), 10);
    EXPECT_EQ(*ring, 13);
    for (const int steps : {0, 1, 4, 5, 6, 1000003, LARGEST}) {
        for (int position = 10; position < 15; ++position) {
            const CircIterator at(10, 5, position);
            EXPECT_EQ(*(at + steps - steps), position) << steps;
            EXPECT_EQ(*(at - steps), *(at + -steps)) << steps;
        }
    }
}

TEST(CircIterator, StepsOverBothEnds) {
    CircIterator ring(10, 5, 14);
    EXPECT_EQ(*ring++, 14);
    EXPECT_EQ(*ring++, 10);
    EXPECT_EQ(*ring--, 11);
    EXPECT_EQ(*ring--, 10);
    EXPECT_EQ(*ring, 14);
    CircIterator single(3, 1);
    EXPECT_EQ(*++single, 3);
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
}

TEST(CircIterator, IsExactForEveryInt) {
    // 2147483647 = 3 * 715827882 + 1 and -2147483648 = -3 * 715827883 + 1.
    CircIterator ring(0, 3);
    EXPECT_EQ(*(ring + LARGEST), 1);
    EXPECT_EQ(*(ring + SMALLEST), 1);
    EXPECT_EQ(*(ring - SMALLEST), 2);
    // The position lies 4294967293 = 3 * 1431655765 - 2 before the start.
    EXPECT_EQ(*CircIterator(LARGEST - 2, 3, SMALLEST), LARGEST);
    EXPECT_EQ(*(CircIterator(LARGEST - 2, 3, LARGEST) + LARGEST), LARGEST - 2);
    CircIterator last(LARGEST - 2, 3, LARGEST);
    EXPECT_EQ(*++last, LARGEST - 2);
    EXPECT_EQ(*--last, LARGEST);
    CircIterator first(SMALLEST, LARGEST);
    EXPECT_EQ(*--first, -2);
    EXPECT_EQ(*++first, SMALLEST);
}

}  // namespace
