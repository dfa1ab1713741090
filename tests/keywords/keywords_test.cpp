// SPDX-License-Identifier: MIT
#include "keyword_tables.h"
#include <marlin/keywords/predefined_keywords.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

// What another object's constructor finds before main.
const bool staticPredefined = CKeywords::IsPredefinedKeyword("project contractor");

TEST(Keywords, AreFoundByNameAndPosition) {
    CKeywords table = Table({{"A", "1", 0}, {"b", "2", 0}, {"A", "3", 0}});
    EXPECT_EQ(table.GetKeyword("A"), table.GetKeyword(0));
    EXPECT_EQ(table.GetKeywordConst("b"), table.GetKeywordConst(1));
    EXPECT_EQ(table.GetKeyword(2)->m_Value, "3");
    for (const char* const name : {"a", "B", "", "A "}) {
        EXPECT_EQ(table.GetKeyword(name), nullptr) << name;
    }
    for (const int position : {-1, 3, least}) {
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

TEST(Keywords, OperationsChangeATableOfThreeAndAnotherOfFour) {
    using Operation = std::function<void(CKeywords&, CKeywords&)>;
    const CKeyword a = {10, 0, 0, "new", "a"};
    const CKeyword d = {7, 11, 12, "3", "d"};
    const std::string table = "a=1*1 b=2*0 a=3*3 ";
    const std::string others = "c=x*4 a=y*5 c=z*6 a=w*7 ";
    const struct {
        Operation Do;
        std::string Table, Other;
    } cases[] = {
        {[&](auto& t, auto&) { t.AddKeyword(&a); }, "a=1*11 b=2*0 a=3*3 ", others},
        {[&](auto& t, auto&) { t.AddKeyword(&d); }, table + "d=3*7 ", others},
        {[&](auto& t, auto&) { t.AddKeyword(t.GetKeyword(0)); }, "a=1*2 b=2*0 a=3*3 ", others},
        {[&](auto& t, auto&) { t.AddKeywordToFront(&a); }, "a=1*11 b=2*0 a=3*3 ", others},
        {[&](auto& t, auto&) { t.AddKeywordToFront(&d); }, "d=3*7 " + table, others},
        {[&](auto& t, auto& o) { o.AddKeyword(nullptr), t.AddKeywordToFront(nullptr); }, table,
         others},
        {[&](auto& t, auto& o) { t.AddKeywords(o); }, "a=1*13 b=2*0 a=3*3 c=x*10 ", others},
        // The first a: 1 + 1, then 3 of the second one.
        {[&](auto& t, auto&) { t.AddKeywords(t); }, "a=1*5 b=2*0 a=3*3 ", others},
        {[&](auto& t, auto& o) { t.SetValues(o); }, "a=y*1 b=2*0 a=y*3 ", others},
        {[&](auto& t, auto&) { t.ClearRefCount(); }, "a=1*0 b=2*0 a=3*0 ", others},
        {[&](auto& t, auto&) { t.Clear(); }, "", others},
        {[&](auto& t, auto&) { t.RemoveKeyword("a", false); }, table, others},
        {[&](auto& t, auto&) { t.RemoveKeyword("a", true); }, "b=2*0 a=3*3 ", others},
        {[&](auto& t, auto&) { t.RemoveKeyword("b", false); }, "a=1*1 a=3*3 ", others},
        {[&](auto& t, auto&) { t.RemoveKeyword("none", true); }, table, others},
        {[&](auto& t, auto& o) { t.ExcludeKeywords(o); }, "b=2*0 ", others},
        {[&](auto& t, auto& o) { o.ExcludeKeywords(t); }, table, "c=x*4 c=z*6 "},
        {[&](auto& t, auto&) { t.ExcludeKeywords(t); }, "", others},
        {[&](auto& t, auto& o) { t.AddRefcountRemove(o); }, "a=1*13 b=2*0 a=3*3 ", "c=x*4 c=z*6 "},
        {[&](auto& t, auto&) { t.AddRefcountRemove(t); }, "", others},
        {[&](auto& t, auto&) {
             t = Table({{"a", "", most}, {"b", "", least}}), t.AddKeywords(t);
         },
         "a=*" + std::to_string(most) + " b=*" + std::to_string(least) + " ", others},
    };
    for (const auto& c : cases) {
        CKeywords changed = Table({{"a", "1", 1}, {"b", "2", 0}, {"a", "3", 3}});
        CKeywords other = Table({{"c", "x", 4}, {"a", "y", 5}, {"c", "z", 6}, {"a", "w", 7}});
        c.Do(changed, other);
        EXPECT_EQ(Rows(changed), c.Table);
        EXPECT_EQ(Rows(other), c.Other) << c.Table;
    }
    CKeywords copies;
    copies.AddKeyword(&d);
    CKeyword* const copied = copies.GetKeyword("d");
    EXPECT_EQ(copied->m_Extra1 * 100 + copied->m_Extra2, 1112);
    copies.AddKeywords(Numbered(0, 1000));
    EXPECT_EQ(copies.GetKeyword("d"), copied) << "pointers stay good while keywords are added";
}

TEST(Keywords, OfOneNameTheFirstCountsInLargeTablesToo) {
    std::vector<Row> rows;
    for (int i = 0; i < 100; ++i) {
        rows.push_back({std::to_string(i % 50), std::to_string(i), 0});
    }
    CKeywords table = Table(rows);
    table.AddKeywords(Numbered(0, 50));
    table.SetValues(Table(rows));
    for (int i = 0; i < table.GetSize(); ++i) {
        EXPECT_EQ(table.GetKeyword(i)->m_RefCount, i < 50 ? 1 : 0) << i;
        EXPECT_EQ(table.GetKeyword(i)->m_Value, std::to_string(i % 50)) << i;
    }
}

TEST(Keywords, AreEqualInAnyOrderAndCount) {
    const CKeywords table = Table({{"a", "1", 1}, {"b", "2", 2}});
    const CKeywords turned = Table({{"b", "2", 9}, {"a", "1", 9}});
    EXPECT_EQ(table, turned);
    EXPECT_NE(table.GetChecksum(), turned.GetChecksum());
    EXPECT_EQ(table.GetChecksum(), Table({{"a", "1", 5}, {"b", "2", 5}}).GetChecksum());
    for (const CKeywords& other : {Table({{"a", "1", 1}}), Table({{"a", "1", 1}, {"b", "3", 2}}),
                                   Table({{"a", "1", 1}, {"c", "2", 2}})}) {
        EXPECT_FALSE(table == other || other == table) << Rows(other);
    }
}

TEST(Keywords, StandInASectionInTheirOrder) {
    Section section("Texts");
    section.SetComments("a comment");
    section += SectionKey("Old", "key");
    const CKeywords table = Table({{"b", "2", 2}, {"", "x", 0}, {"b", "1", 1}});
    EXPECT_TRUE(table.Write(section).Empty());
    EXPECT_EQ(KeysOf(section), "b=2\n=x\nb=1\n");
    EXPECT_EQ(*section.GetName() + ";" + section.GetComments(), "Texts;a comment");
    EXPECT_EQ(table.GetChecksum(), section.ComputeChecksum());
    section.AddChecksum();
    CKeywords read = Numbered(0, 3);
    EXPECT_TRUE(read.Read(section).Empty());
    EXPECT_EQ(Rows(read),
              "b=2*0 =x*0 b=1*0 $CHECKSUM$=" + std::to_string(table.GetChecksum()) + "*0 ");
}

TEST(Keywords, AreReadFromOneLineListsAndWrittenToThem) {
    const std::string odd("n\0ul", 4);
    const std::string list = "project name%" + odd + "%Z";
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"a%b%a", "a=*2 b=*1 "},
        {"%a%%b%", "a=*1 b=*1 "},
        {" a ,b%\n", " a ,b=*1 \n=*1 "},
        {list, "project name=*1 " + odd + "=*1 Z=*1 "}};
    for (const auto& [text, rows] : cases) {
        CKeywords table = Table({{"old", "1", 1}});
        table.FromString(text);
        EXPECT_EQ(Rows(table), rows) << text;
    }
    EXPECT_EQ(Table({{"project name", "1", 1}, {odd, "2", 2}, {"Z", "3", 3}}).ToString(), list);
    EXPECT_EQ(CKeywords().ToString(), "");
    const CKeywords many = Numbered(0, 20'000);
    CKeywords read;
    read.FromString(many.ToString());
    EXPECT_EQ(read.ToString(), many.ToString());
    EXPECT_EQ(read.GetSize(), 20'000);
}

}  // namespace
