// SPDX-License-Identifier: MIT
#include "contours/definition_text.h"
#include <marlin/base/colors/color_table.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Levels = std::vector<double>;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

ContourDefinitionList::ContourDefInfo At(double level) {
    return {.Level = level};
}

ContourDefinitionList ListOf(const Levels& levels) {
    ContourDefinitionList list;
    for (const double level : levels) {
        list.Add(At(level));
    }
    return list;
}

Levels LevelsOf(const ContourDefinitionList& list) {
    Levels levels;
    for (int i = 0; i < list.NumContours(); ++i) {
        levels.push_back(list[i].Level);
    }
    return levels;
}

TEST(ContourDefinitionList, KeepsAddedDefinitionsInOrderAndRefusesLevelsItHas) {
    ContourDefinitionList list;
    EXPECT_EQ(list.Add(At(nan)), -1);
    EXPECT_EQ(list.Add(At(10.0)), 0);
    EXPECT_EQ(list.Add(At(5.0)), 0);
    EXPECT_EQ(list.Add(At(20.0)), 2);
    EXPECT_EQ(list.Add(At(10.0000001)), 2);
    for (const double level : {5.0, 10.0, 20.0, nan}) {
        EXPECT_EQ(list.Add(At(level)), -1) << level;
    }
    EXPECT_EQ(LevelsOf(list), (Levels{5.0, 10.0, 10.0000001, 20.0}));
    EXPECT_EQ(list.Add(At(infinity)), 4);
    EXPECT_EQ(list.Add(At(-infinity)), 0);
}

TEST(ContourDefinitionList, IsEmptyAfterItWasMovedFrom) {
    ContourDefinitionList list = ListOf({3.0, 2.0, 1.0});
    ContourDefinitionList taken = std::move(list);
    EXPECT_EQ(LevelsOf(taken), (Levels{1.0, 2.0, 3.0}));
    EXPECT_EQ(list.NumContours(), 0);  // NOLINT(bugprone-use-after-move): empty by contract
    EXPECT_EQ(list.Add(At(7.0)), 0);
    taken = std::move(list);
    EXPECT_EQ(LevelsOf(taken), (Levels{7.0}));
}

// Against a plain vector, through every mixture of places.
TEST(ContourDefinitionList, StaysInOrderThroughAddingAndRemoving) {
    ContourDefinitionList list;
    Levels sorted;
    unsigned int random = 1;
    for (int i = 0; i < 3000; ++i) {
        random = random * 1664525U + 1013904223U;
        const double level = random >> 20U;
        const auto place = std::lower_bound(sorted.begin(), sorted.end(), level);
        const bool isThere = place != sorted.end() && *place == level;
        const int index = isThere ? -1 : static_cast<int>(place - sorted.begin());
        EXPECT_EQ(list.Add(At(level)), index);
        if (!isThere) {
            sorted.insert(place, level);
        }
        if (i % 3 == 0 || (i > 1500 && i < 2500)) {
            const auto removed = static_cast<std::ptrdiff_t>((random >> 8U) % sorted.size());
            EXPECT_TRUE(list.Remove(static_cast<int>(removed)));
            sorted.erase(sorted.begin() + removed);
        }
    }
    EXPECT_EQ(LevelsOf(list), sorted);
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        EXPECT_EQ(list.Find(sorted[i]), static_cast<int>(i));
    }
    while (list.NumContours() > 0) {
        EXPECT_TRUE(list.Remove(0));
    }
    EXPECT_EQ(list.Add(At(3.0)), 0);
    EXPECT_EQ(list.Add(At(1.0)), 0);
    EXPECT_EQ(LevelsOf(list), (Levels{1.0, 3.0}));
}

TEST(ContourDefinitionList, FindsLevelsExactly) {
    const ContourDefinitionList list = ListOf({5.0, 10.0});
    for (const auto& [level, index] :
         {std::pair(5.0, 0), std::pair(10.0, 1), std::pair(7.5, -1), std::pair(4.0, -1),
          std::pair(11.0, -1), std::pair(std::nextafter(10.0, 0.0), -1), std::pair(nan, -1)}) {
        EXPECT_EQ(list.Find(level), index) << level;
        EXPECT_EQ(list.Find(At(level)), index) << level;
    }
    EXPECT_EQ(ContourDefinitionList().Find(5.0), -1);
}

TEST(ContourDefinitionList, SetsADefinitionInPlaceOrMovesItAndRefusesIndicesOutside) {
    ContourDefinitionList list = ListOf({5.0, 10.0, 20.0});
    for (const int index : {-1, 3}) {
        EXPECT_EQ(list.Set(index, At(1.0)), -1) << index;
        EXPECT_FALSE(list.Remove(index)) << index;
    }
    EXPECT_EQ(list.Set(1, At(nan)), -1);
    EXPECT_EQ(list.Set(1, {1.5F, 2, 10.0, 7, true}), 1);
    EXPECT_EQ(list.Set(0, At(30.0)), 2);
    EXPECT_EQ(TextOf(list), "10/7/2/1.5/1 20/0/0/0/0 30/0/0/0/0 ");
    EXPECT_EQ(list.Set(0, list[2]), -1) << "its level is that of another";
    EXPECT_EQ(TextOf(list), "20/0/0/0/0 30/0/0/0/0 ");
    EXPECT_TRUE(list.Remove(1));
    EXPECT_EQ(LevelsOf(list), (Levels{20.0}));
}

TEST(ContourDefinitionList, GeneratesTheMultiplesOfTheInterval) {
    const struct {
        double lowest, highest, interval;
        Levels levels;
    } cases[] = {{0.0, 10.0, 2.5, {0.0, 2.5, 5.0, 7.5, 10.0}},
                 {7.0, 20.0, 5.0, {10.0, 15.0, 20.0}},
                 {-7.0, 3.0, 5.0, {-5.0, 0.0}},
                 {-10.0, -1.0, 3.0, {-9.0, -6.0, -3.0}},
                 {1.0, 2.0, 5.0, {}},
                 {-5.0, 5.0, infinity, {0.0}}};
    for (const auto& [lowest, highest, interval, levels] : cases) {
        ContourDefinitionList list = ListOf({1.0, 99.0});
        EXPECT_TRUE(list.Generate(lowest, highest, interval));
        EXPECT_EQ(LevelsOf(list), levels) << lowest << " to " << highest;
    }
    ContourDefinitionList list;
    EXPECT_TRUE(list.Generate(0.0, 1.0, 0.1));
    ASSERT_EQ(list.NumContours(), 11);
    EXPECT_EQ(list[10].Level, 0.9999999999999999) << "by repeated addition";
    EXPECT_TRUE(list.Generate(1.0, ContourDefinitionList::MaxGeneratedLevels, 1.0));
    EXPECT_EQ(list.NumContours(), ContourDefinitionList::MaxGeneratedLevels);
}

TEST(ContourDefinitionList, IsEmptyAfterARefusedGeneration) {
    const struct {
        double lowest, highest, interval;
    } cases[] = {{5.0, 5.0, 1.0},         {6.0, 5.0, 1.0},      {0.0, 10.0, 0.0},
                 {0.0, 10.0, -1.0},       {nan, 10.0, 1.0},     {0.0, nan, 1.0},
                 {0.0, 10.0, nan},        {0.0, infinity, 1.0}, {-infinity, 0.0, 1.0},
                 {1e17, 1e17 + 64, 1.0},  {-1e17, 0.0, 1.0},    {0.0, 1.0, 1e-300},
                 {0.0, 10'000'000.0, 1.0}};  // the last is one level too many
    for (const auto& [lowest, highest, interval] : cases) {
        ContourDefinitionList list = ListOf({1.0});
        EXPECT_FALSE(list.Generate(lowest, highest, interval)) << lowest << " to " << highest;
        EXPECT_EQ(list.NumContours(), 0);
    }
}

// An inverted color is 255 less the word: 255 - 66048 modulo 2^32.
TEST(ContourDefinitionList, GeneratesFromAColorTable) {
    ColorTable table;
    ContourDefinitionList list = ListOf({1.0});
    EXPECT_FALSE(list.Generate(table, false));
    EXPECT_EQ(list.NumContours(), 0);
    table.AddEntry(-2.0, 255);
    table.AddEntry(3.5, 66048);
    EXPECT_TRUE(list.Generate(table, false));
    EXPECT_EQ(TextOf(list), "-2/255/0/0/0 3.5/66048/0/0/0 ");
    EXPECT_TRUE(list.Generate(table, true));
    EXPECT_EQ(TextOf(list), "-2/0/0/0/0 3.5/4294901503/0/0/0 ");
}

}  // namespace
