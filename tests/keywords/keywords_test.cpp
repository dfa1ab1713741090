// SPDX-License-Identifier: MIT
#include "keyword_tables.h"
#include <marlin/keywords/predefined_keywords.h>
#include <marlin/settings/section.h>

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// What another object's constructor finds before main.
const bool staticPredefined = CKeywords::IsPredefinedKeyword("project contractor");

const std::vector<Row> aba = {{"a", "1", 1}, {"b", "2", 2}, {"a", "3", 3}};

TEST(Keywords, AreFoundByNameAndPosition) {
    CKeywords table = Table({{"A", "1", 0}, {"b", "2", 0}, {"A", "3", 0}});
    EXPECT_EQ(table.GetKeyword("A"), table.GetKeyword(0));
    EXPECT_EQ(table.GetKeywordConst("b"), table.GetKeywordConst(1));
    EXPECT_EQ(table.GetKeyword(2)->m_Value, "3");
    for (const char* const name : {"a", "B", "", "A "}) {
        EXPECT_EQ(table.GetKeyword(name), nullptr) << name;
    }
    for (const int position : {-1, 3, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(table.GetKeyword(position), nullptr) << position;
    }
}

TEST(Keywords, KnowThePredefinedNames) {
    EXPECT_TRUE(staticPredefined);
    std::string names;
    for (const std::string& name : PredefinedKeywordKeys) {
        EXPECT_TRUE(CKeywords::IsPredefinedKeyword(name)) << name;
        names += name + ";";
    }
    EXPECT_EQ(names,
              "plot project;current date;current time;coordinate system;project name;"
              "project number;project task;project client;project contractor;");
    EXPECT_FALSE(CKeywords::IsPredefinedKeyword("Project Name"));
    EXPECT_FALSE(CKeywords::IsPredefinedKeyword("plot name"));
    EXPECT_TRUE(CKeywords::IsPredefinedPlotKeyword("plot name"));
    EXPECT_FALSE(CKeywords::IsPredefinedPlotKeyword("plot project"));
}

TEST(Keywords, MergeByNameWhenAdded) {
    const CKeyword a = {10, 0, 0, "new", "a"};
    const CKeyword c = {7, 11, 12, "3", "c"};
    const CKeyword front = {-1, 0, 0, "0", "front"};
    CKeywords table = Table({{"a", "1", 1}, {"b", "2", 2}});
    CKeyword* const first = table.GetKeyword("a");
    for (const CKeyword* const keyword : {&c, &a, static_cast<const CKeyword*>(nullptr)}) {
        table.AddKeyword(keyword);
    }
    for (const CKeyword* const keyword : {&a, &front, static_cast<const CKeyword*>(nullptr)}) {
        table.AddKeywordToFront(keyword);
    }
    EXPECT_EQ(Rows(table), "front=0*-1 a=1*21 b=2*2 c=3*7 ");
    EXPECT_EQ(table.GetKeyword("c")->m_Extra1, 11);
    EXPECT_EQ(table.GetKeyword("c")->m_Extra2, 12);
    EXPECT_EQ(table.GetKeyword("a")->m_Extra1, 0);
    table.AddKeywords(Numbered(0, 1000));
    EXPECT_EQ(table.GetKeyword("a"), first) << "pointers stay good while keywords are added";
    table.AddKeyword(first);
    EXPECT_EQ(first->m_RefCount, 42);
}

TEST(Keywords, MergeWholeTables) {
    CKeywords table = Table(aba);
    const CKeywords other = Table({{"c", "x", 4}, {"a", "y", 5}, {"c", "z", 6}, {"a", "w", 7}});
    table.AddKeywords(other);
    EXPECT_EQ(Rows(table), "a=1*13 b=2*2 a=3*3 c=x*10 ");
    table.AddKeywords(table);  // the first a: 13 + 13, then 3 of the second one
    EXPECT_EQ(Rows(table), "a=1*29 b=2*4 a=3*3 c=x*20 ");
}

TEST(Keywords, OfOneNameTheFirstCountsInLargeTablesToo) {
    std::vector<Row> rows;
    for (int i = 0; i < 100; ++i) {
        rows.push_back({std::to_string(i % 50), std::to_string(i), 0});
    }
    CKeywords added;
    added.AddKeywords(Table(rows));
    EXPECT_EQ(added.GetSize(), 50);
    CKeywords table = Table(rows);
    table.AddKeywords(Numbered(0, 50));
    table.SetValues(Table(rows));
    for (int i = 0; i < table.GetSize(); ++i) {
        EXPECT_EQ(table.GetKeyword(i)->m_RefCount, i < 50 ? 1 : 0) << i;
        EXPECT_EQ(table.GetKeyword(i)->m_Value, std::to_string(i % 50)) << i;
    }
}

TEST(Keywords, CountsStopAtTheLargestNumber) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    CKeywords table = Table({{"a", "", most}, {"b", "", least}});
    table.AddKeywords(table);
    EXPECT_EQ(table.GetKeyword("a")->m_RefCount, most);
    EXPECT_EQ(table.GetKeyword("b")->m_RefCount, least);
}

TEST(Keywords, TakeValuesAndCountsOfAnotherTable) {
    CKeywords table = Table(aba);
    table.SetValues(Table({{"c", "x", 4}, {"a", "y", 5}, {"a", "z", 6}}));
    EXPECT_EQ(Rows(table), "a=y*1 b=2*2 a=y*3 ");
    table = Table(aba);
    CKeywords other = Table({{"c", "x", 4}, {"a", "y", 5}, {"d", "z", 6}, {"a", "w", 7}});
    table.AddRefcountRemove(other);
    EXPECT_EQ(Rows(table), "a=1*13 b=2*2 a=3*3 ");
    EXPECT_EQ(Rows(other), "c=x*4 d=z*6 ");
    table.AddRefcountRemove(table);
    EXPECT_EQ(table.GetSize(), 0);
}

TEST(Keywords, AreRemovedWhenUnusedOrAskedTo) {
    CKeywords table = Table({{"x", "1", 1}, {"y", "2", 0}, {"x", "3", 0}, {"z", "4", -1}});
    table.RemoveKeyword("x", false);
    table.RemoveKeyword("z", false);
    table.RemoveKeyword("none", true);
    EXPECT_EQ(Rows(table), "x=1*1 y=2*0 x=3*0 z=4*-1 ");
    table.RemoveKeyword("y", false);
    table.RemoveKeyword("x", true);
    EXPECT_EQ(Rows(table), "x=3*0 z=4*-1 ");
    table.ClearRefCount();
    EXPECT_EQ(Rows(table), "x=3*0 z=4*0 ");
}

TEST(Keywords, AreExcludedOneForOne) {
    CKeywords table = Table({{"a", "1", 1}, {"b", "2", 2}, {"a", "3", 3}, {"a", "4", 4}});
    table.ExcludeKeywords(Table({{"a", "", 0}, {"c", "", 0}, {"a", "", 0}}));
    EXPECT_EQ(Rows(table), "b=2*2 a=4*4 ");
    table.ExcludeKeywords(table);
    EXPECT_EQ(table.GetSize(), 0);
}

TEST(Keywords, AreEqualInAnyOrderAndCount) {
    const CKeywords table = Table({{"a", "1", 1}, {"b", "2", 2}});
    const CKeywords turned = Table({{"b", "2", 9}, {"a", "1", 9}});
    EXPECT_EQ(table, turned);
    EXPECT_NE(table.GetChecksum(), turned.GetChecksum());
    EXPECT_EQ(table.GetChecksum(), Table({{"a", "1", 5}, {"b", "2", 5}}).GetChecksum());
    const CKeywords a = Table({{"a", "1", 1}});
    for (const CKeywords& other :
         {a, Table({{"a", "1", 1}, {"b", "3", 2}}), Table({{"a", "1", 1}, {"c", "2", 2}})}) {
        EXPECT_FALSE(table == other) << Rows(other);
        EXPECT_FALSE(other == table) << Rows(other);
    }
}

TEST(Keywords, StandInASectionInTheirOrder) {
    Section section("Texts");
    section += SectionKey("Old", "key");
    const CKeywords table = Table({{"b", "2", 2}, {"", "x", 0}, {"b", "1", 1}});
    EXPECT_TRUE(table.Write(section).Empty());
    EXPECT_EQ(KeysOf(section), "b=2\n=x\nb=1\n");
    EXPECT_EQ(table.GetChecksum(), section.ComputeChecksum());
    section.AddChecksum();
    CKeywords read = Numbered(0, 3);
    EXPECT_TRUE(read.Read(section).Empty());
    EXPECT_EQ(Rows(read),
              "b=2*0 =x*0 b=1*0 $CHECKSUM$=" + std::to_string(table.GetChecksum()) + "*0 ");
}

TEST(Keywords, ReadOneLineLists) {
    const struct {
        std::string text;
        const char* rows;
    } cases[] = {{"", ""},
                 {"a%b%a", "a=*2 b=*1 "},
                 {"%a%%b%", "a=*1 b=*1 "},
                 {" a ,b%\n", " a ,b=*1 \n=*1 "}};
    for (const auto& [text, rows] : cases) {
        CKeywords table = Table({{"old", "1", 1}});
        table.FromString(text);
        EXPECT_EQ(Rows(table), rows) << text;
    }
}

TEST(Keywords, NamesSurviveTheOneLineList) {
    const std::string odd("n\0ul", 4);
    const CKeywords table = Table({{"project name", "1", 1}, {odd, "2", 2}, {"Z", "3", 3}});
    EXPECT_EQ(table.ToString(), "project name%" + odd + "%Z");
    EXPECT_EQ(CKeywords().ToString(), "");
    CKeywords read;
    read.FromString(table.ToString());
    EXPECT_EQ(Rows(read), "project name=*1 " + odd + "=*1 Z=*1 ");
    const CKeywords many = Numbered(0, 20'000);
    read.FromString(many.ToString());
    EXPECT_EQ(read.ToString(), many.ToString());
    EXPECT_EQ(read.GetSize(), 20'000);
}

}  // namespace
