// SPDX-License-Identifier: MIT
#include <marlin/geometry/circ_iterator.h>

#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr int LARGEST = std::numeric_limits<int>::max();
constexpr int SMALLEST = std::numeric_limits<int>::min();

TEST(CircIterator, StartsAtTheStartOrAtAWrappedPosition) {
    EXPECT_EQ(*CircIterator(10, 5), 10);
    const struct {
        int position;
        int expected;
    } cases[] = {{17, 12}, {10, 10}, {14, 14}, {15, 10}, {9, 14},
                 {5, 10},  {4, 14},  {0, 10},  {-1, 14}};
    for (const auto& [position, expected] : cases) {
        EXPECT_EQ(*CircIterator(10, 5, position), expected) << position;
        CircIterator assigned(10, 5);
        EXPECT_EQ(&(assigned = position), &assigned);
        EXPECT_EQ(*assigned, expected) << position;
    }
    const CircIterator ring(-3, 7, 2);
    EXPECT_EQ(ring.Start(), -3);
    EXPECT_EQ(ring.Range(), 7);
    EXPECT_EQ(*ring, 2);
}

TEST(CircIterator, MovesBySteps) {
    CircIterator ring(10, 5, 17);
    EXPECT_EQ(*(ring += 4), 11);
    EXPECT_EQ(*(ring -= 3), 13);
    EXPECT_EQ(*(ring + 2), 10);
    EXPECT_EQ(*(ring - 4), 14);
    EXPECT_EQ(*(ring + -4), 14);
    EXPECT_EQ(*(ring + 0), 13);
    EXPECT_EQ(*ring, 13);
}

TEST(CircIterator, StepsOverBothEnds) {
    CircIterator ring(10, 5);
    EXPECT_EQ(*--ring, 14);
    EXPECT_EQ(*++ring, 10);
    EXPECT_EQ(*ring++, 10);
    EXPECT_EQ(*ring, 11);
    EXPECT_EQ(*ring--, 11);
    EXPECT_EQ(*ring--, 10);
    EXPECT_EQ(*ring, 14);
    ring = 12;
    EXPECT_EQ(*--ring, 11);
    for (int i = 0; i < 5; ++i) {
        ++ring;
    }
    EXPECT_EQ(*ring, 11);
    CircIterator single(3, 1);
    EXPECT_EQ(*++single, 3);
    EXPECT_EQ(*--single, 3);
}

TEST(CircIterator, ComparesWithWrappedPositions) {
    CircIterator ring(0, 4);
    ring = -1;
    EXPECT_EQ(*ring, 3);
    EXPECT_TRUE(ring == 7);
    EXPECT_TRUE(ring == -5);
    EXPECT_FALSE(ring == 8);
    EXPECT_TRUE(ring != 8);
    EXPECT_FALSE(ring != 3);
}

TEST(CircIterator, KeepsItsPositionInAChangedRingWhereItCan) {
    CircIterator moved(10, 5, 12);
    moved.SetStart(11);
    EXPECT_EQ(*moved, 12);
    moved.SetStart(20);
    EXPECT_EQ(moved.Start(), 20);
    EXPECT_EQ(*moved, 22);
    CircIterator sized(10, 5, 14);
    sized.SetRange(20);
    EXPECT_EQ(*sized, 14);
    sized.SetRange(3);
    EXPECT_EQ(sized.Range(), 3);
    EXPECT_EQ(*sized, 11);
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

TEST(CircIterator, EveryMoveIsUndoneByItsOpposite) {
    for (const int steps : {0, 1, 4, 5, 6, 1000003, LARGEST}) {
        for (int position = 10; position < 15; ++position) {
            const CircIterator ring(10, 5, position);
            EXPECT_EQ(*(ring + steps - steps), position) << steps;
            EXPECT_EQ(*(ring - steps), *(ring + -steps)) << steps;
        }
    }
}

}  // namespace
