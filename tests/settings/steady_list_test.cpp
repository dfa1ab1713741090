// SPDX-License-Identifier: MIT
#include <marlin/settings/steady_list.h>

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using List = MARLINSUITE::SteadyList<std::string>;

List Counted(int count) {
    List list;
    for (int i = 0; i < count; ++i) {
        list.emplace_back(std::to_string(i));
    }
    return list;
}

std::vector<std::string> Items(const List& list) {
    return {list.begin(), list.end()};
}

std::vector<std::string> Numbers(int count) {
    std::vector<std::string> numbers;
    for (int i = 0; i < count; ++i) {
        numbers.push_back(std::to_string(i));
    }
    return numbers;
}

TEST(SteadyList, KeepsOrderAndPositionsAtEverySize) {
    for (int count = 0; count <= 40; ++count) {
        List list = Counted(count);
        EXPECT_EQ(list.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(list.empty(), count == 0);
        EXPECT_EQ(Items(list), Numbers(count));
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(list[static_cast<std::size_t>(i)], std::to_string(i));
        }
    }
}

TEST(SteadyList, ItemsStayWhereTheyAreWhileOthersAreAppended) {
    List list;
    std::vector<const std::string*> places;
    for (int i = 0; i < 300; ++i) {
        places.push_back(&list.emplace_back(std::to_string(i)));
    }
    std::vector<std::string> more = Numbers(1000);
    list.Append(more);
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(&list[i], places[i]);
    }
}

TEST(SteadyList, AnItemOfTheListItselfMayBeAppended) {
    List list = Counted(4);
    for (int i = 0; i < 8; ++i) {
        list.emplace_back(list[0]);
    }
    EXPECT_EQ(std::ranges::count(list, "0"), 9);
}

TEST(SteadyList, ManyItemsAreAppendedAtOnceBehindTheOthers) {
    for (int before = 0; before <= 10; ++before) {
        for (int count = 0; count <= 10; ++count) {
            List list = Counted(before);
            std::vector<std::string> items = Numbers(count);
            list.Append(items);
            list.emplace_back("last");
            std::vector<std::string> expected = Numbers(before);
            std::ranges::copy(Numbers(count), std::back_inserter(expected));
            expected.push_back("last");
            EXPECT_EQ(Items(list), expected);
        }
    }
}

TEST(SteadyList, AnyItemIsRemovedAndOthersMayFollow) {
    for (int removed = 0; removed < 9; ++removed) {
        List list = Counted(9);
        list.erase(std::next(list.begin(), removed));
        std::vector<std::string> expected = Numbers(9);
        expected.erase(expected.begin() + removed);
        EXPECT_EQ(Items(list), expected);
        expected.push_back("new");
        list.emplace_back("new");
        EXPECT_EQ(Items(list), expected);
    }
    List list = Counted(9);
    while (!list.empty()) {
        list.erase(list.begin());
    }
    EXPECT_EQ(list.begin(), list.end());
    list.emplace_back("0");
    EXPECT_EQ(Items(list), Numbers(1));
}

TEST(SteadyList, TheFirstItemThatPassesATestIsFound) {
    const List list = Counted(20);
    const auto longer = [](const std::string& item) { return item.size() > 1; };
    EXPECT_EQ(list.FindIf(longer), &list[10]);
    EXPECT_EQ(list.FindIf([](const std::string& item) { return item.empty(); }), nullptr);
    EXPECT_EQ(List().FindIf(longer), nullptr);
}

TEST(SteadyList, CopiesAreIndependentAndGrowWithoutMovingTheirItems) {
    const List list = Counted(9);
    List copy = list;
    const std::string* const first = &copy[0];
    copy.emplace_back("9");
    EXPECT_EQ(Items(copy), Numbers(10));
    EXPECT_EQ(&copy[0], first);
    EXPECT_EQ(Items(list), Numbers(9));
    copy = List();
    EXPECT_TRUE(copy.empty());
    List& itself = copy = list;
    copy = itself;
    EXPECT_EQ(Items(copy), Numbers(9));
}

}  // namespace
