// SPDX-License-Identifier: MIT
#include <marlin/keywords/keywords.h>
#include <marlin/keywords/predefined_keywords.h>
#include <marlin/settings/ini_file.h>
#include <marlin/settings/section.h>

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/section_keys.h>

namespace {

// What another object's constructor finds before main.
const bool staticPredefined = CKeywords::IsPredefinedKeyword("project contractor");

CKeyword Keyword(const std::string& name, const std::string& value, int count) {
    CKeyword keyword;
    keyword.m_Key = name;
    keyword.m_Value = value;
    keyword.m_RefCount = count;
    return keyword;
}

// As `Read` makes them, so that names may stand there more than once.
CKeywords Table(const std::vector<CKeyword>& rows) {
    Section section("Keywords");
    for (const CKeyword& row : rows) {
        section += SectionKey(row.m_Key, row.m_Value);
    }
    CKeywords table;
    table.Read(section);
    for (int i = 0; i < table.GetSize(); ++i) {
        table.GetKeyword(i)->m_RefCount = rows[static_cast<std::size_t>(i)].m_RefCount;
    }
    return table;
}

// Each keyword as "name=value*count ".
std::string Rows(const CKeywords& table) {
    std::string text;
    for (int i = 0; i < table.GetSize(); ++i) {
        const CKeyword& keyword = *table.GetKeywordConst(i);
        text += keyword.m_Key + "=" + keyword.m_Value + "*" + std::to_string(keyword.m_RefCount);
        text += " ";
    }
    return text;
}

CKeywords Numbered(int first, int count) {
    CKeywords table;
    std::string text;
    for (int i = first; i < first + count; ++i) {
        text += "%" + std::to_string(i) + "%";
    }
    table.AddKeywordsInString(text);
    return table;
}

TEST(Keywords, AreFoundByNameAndPosition) {
    CKeywords table = Table({Keyword("A", "1", 0), Keyword("b", "2", 0), Keyword("A", "3", 0)});
    EXPECT_EQ(table.GetKeyword("A"), table.GetKeyword(0));
    EXPECT_EQ(table.GetKeywordConst("b"), table.GetKeywordConst(1));
    EXPECT_EQ(table.GetKeyword(2)->m_Value, "3");
    for (const char* const name : {"a", "B", "", "A "}) {
        EXPECT_EQ(table.GetKeyword(name), nullptr) << name;
        EXPECT_EQ(table.GetKeywordConst(name), nullptr) << name;
    }
    for (const int position : {-1, 3, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(table.GetKeyword(position), nullptr) << position;
        EXPECT_EQ(table.GetKeywordConst(position), nullptr) << position;
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
    CKeyword c = Keyword("c", "3", 7);
    c.m_Extra1 = 11;
    c.m_Extra2 = 12;
    CKeywords table = Table({Keyword("a", "1", 1), Keyword("b", "2", 2)});
    table.AddKeyword(&c);
    const CKeyword a = Keyword("a", "new", 10);
    table.AddKeyword(&a);
    table.AddKeywordToFront(&a);
    const CKeyword front = Keyword("front", "0", -1);
    table.AddKeywordToFront(&front);
    table.AddKeyword(nullptr);
    table.AddKeywordToFront(nullptr);
    EXPECT_EQ(Rows(table), "front=0*-1 a=1*21 b=2*2 c=3*7 ");
    EXPECT_EQ(table.GetKeyword("c")->m_Extra1, 11);
    EXPECT_EQ(table.GetKeyword("c")->m_Extra2, 12);
    EXPECT_EQ(table.GetKeyword("a")->m_Extra1, 0);
}

TEST(Keywords, PointersStayGoodWhileKeywordsAreAdded) {
    CKeywords table = Table({Keyword("a", "1", 1)});
    CKeyword* const a = table.GetKeyword("a");
    table.AddKeywords(Numbered(0, 1000));
    const CKeyword front = Keyword("front", "", 0);
    table.AddKeywordToFront(&front);
    EXPECT_EQ(table.GetKeyword("a"), a);
    table.AddKeyword(a);
    EXPECT_EQ(a->m_RefCount, 2);
}

TEST(Keywords, MergeWholeTables) {
    CKeywords table = Table({Keyword("a", "1", 1), Keyword("b", "2", 2), Keyword("a", "3", 3)});
    const CKeywords other = Table(
        {Keyword("c", "x", 4), Keyword("a", "y", 5), Keyword("c", "z", 6), Keyword("a", "w", 7)});
    table.AddKeywords(other);
    EXPECT_EQ(Rows(table), "a=1*13 b=2*2 a=3*3 c=x*10 ");
    table.AddKeywords(table);  // the first a: 13 + 13, then 3 of the second one
    EXPECT_EQ(Rows(table), "a=1*29 b=2*4 a=3*3 c=x*20 ");
}

TEST(Keywords, OfOneNameTheFirstCountsInLargeTablesToo) {
    std::vector<CKeyword> rows;
    for (int i = 0; i < 100; ++i) {
        rows.push_back(Keyword(std::to_string(i % 50), std::to_string(i), 0));
    }
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
    CKeywords table = Table({Keyword("a", "", most), Keyword("b", "", least)});
    table.AddKeywords(table);
    EXPECT_EQ(table.GetKeyword("a")->m_RefCount, most);
    EXPECT_EQ(table.GetKeyword("b")->m_RefCount, least);
}

TEST(Keywords, LargeTablesMergeLikeSmallOnes) {
    CKeywords table = Numbered(0, 10'000);
    table.AddKeywords(Numbered(5'000, 10'000));
    ASSERT_EQ(table.GetSize(), 15'000);
    for (int i = 0; i < table.GetSize(); ++i) {
        ASSERT_EQ(table.GetKeyword(i)->m_Key, std::to_string(i));
        ASSERT_EQ(table.GetKeyword(i)->m_RefCount, i >= 5'000 && i < 10'000 ? 2 : 1);
    }
    CKeywords rest = Numbered(14'000, 2'000);
    table.AddRefcountRemove(rest);
    EXPECT_EQ(rest.GetSize(), 1'000);
    table.ExcludeKeywords(Numbered(1, 14'998));
    EXPECT_EQ(Rows(table), "0=0*1 14999=14999*2 ");
}

TEST(Keywords, TakeTheValuesOfAnotherTable) {
    CKeywords table = Table({Keyword("a", "1", 1), Keyword("b", "2", 2), Keyword("a", "3", 3)});
    table.SetValues(Table({Keyword("c", "x", 4), Keyword("a", "y", 5), Keyword("a", "z", 6)}));
    EXPECT_EQ(Rows(table), "a=y*1 b=2*2 a=y*3 ");
}

TEST(Keywords, AreRemovedWhenUnusedOrAskedTo) {
    CKeywords table = Table(
        {Keyword("x", "1", 1), Keyword("y", "2", 0), Keyword("x", "3", 0), Keyword("z", "4", -1)});
    table.RemoveKeyword("x", false);
    table.RemoveKeyword("z", false);
    table.RemoveKeyword("none", true);
    EXPECT_EQ(table.GetSize(), 4);
    table.RemoveKeyword("y", false);
    table.RemoveKeyword("x", true);
    EXPECT_EQ(Rows(table), "x=3*0 z=4*-1 ");
    table.ClearRefCount();
    EXPECT_EQ(Rows(table), "x=3*0 z=4*0 ");
    table.Clear();
    EXPECT_EQ(table.GetSize(), 0);
}

TEST(Keywords, AreExcludedOneForOne) {
    CKeywords table = Table(
        {Keyword("a", "1", 1), Keyword("b", "2", 2), Keyword("a", "3", 3), Keyword("a", "4", 4)});
    table.ExcludeKeywords(Table({Keyword("a", "", 0), Keyword("c", "", 0), Keyword("a", "", 0)}));
    EXPECT_EQ(Rows(table), "b=2*2 a=4*4 ");
    table.ExcludeKeywords(table);
    EXPECT_EQ(table.GetSize(), 0);
}

TEST(Keywords, CountsMoveFromTableToTable) {
    CKeywords table = Table({Keyword("a", "1", 1), Keyword("b", "2", 2), Keyword("a", "3", 3)});
    CKeywords other = Table(
        {Keyword("c", "x", 4), Keyword("a", "y", 5), Keyword("d", "z", 6), Keyword("a", "w", 7)});
    table.AddRefcountRemove(other);
    EXPECT_EQ(Rows(table), "a=1*13 b=2*2 a=3*3 ");
    EXPECT_EQ(Rows(other), "c=x*4 d=z*6 ");
    table.AddRefcountRemove(table);
    EXPECT_EQ(table.GetSize(), 0);
}

TEST(Keywords, AreEqualInAnyOrderAndCount) {
    const CKeywords table = Table({Keyword("a", "1", 1), Keyword("b", "2", 2)});
    const CKeywords turned = Table({Keyword("b", "2", 9), Keyword("a", "1", 9)});
    EXPECT_EQ(table, turned);
    EXPECT_NE(table.GetChecksum(), turned.GetChecksum());
    EXPECT_EQ(table.GetChecksum(),
              Table({Keyword("a", "1", 5), Keyword("b", "2", 5)}).GetChecksum());
    EXPECT_FALSE(table == Table({Keyword("a", "1", 1), Keyword("b", "3", 2)}));
    EXPECT_FALSE(table == Table({Keyword("a", "1", 1), Keyword("c", "2", 2)}));
    EXPECT_FALSE(table == Table({Keyword("a", "1", 1)}));
    EXPECT_FALSE(Table({Keyword("a", "1", 1)}) == table);
}

TEST(Keywords, StandInASectionInTheirOrder) {
    Section section("Texts");
    section.SetComments("kept");
    section += SectionKey("Old", "key", "comment");
    const CKeywords table =
        Table({Keyword("b", "2", 2), Keyword("", "x", 0), Keyword("b", "1", 1)});
    EXPECT_TRUE(table.Write(section).Empty());
    EXPECT_EQ(KeysOf(section), "b=2\n=x\nb=1\n");
    EXPECT_EQ(*section.GetName(), "Texts");
    EXPECT_EQ(section.GetComments(), "kept");
    EXPECT_EQ(table.GetChecksum(), section.ComputeChecksum());
    section.AddChecksum();
    CKeywords read = Numbered(0, 3);
    EXPECT_TRUE(read.Read(section).Empty());
    EXPECT_EQ(Rows(read),
              "b=2*0 =x*0 b=1*0 $CHECKSUM$=" + std::to_string(table.GetChecksum()) + "*0 ");
}

TEST(Keywords, SurviveASettingsFile) {
    const CKeywords table =
        Table({Keyword("project name", "Harbour basin 4", 2), Keyword("Date", "2024-05-17", 1)});
    IniFile written;
    table.Write(written["PlotTexts"]);
    EXPECT_EQ(written.Text(),
              "[PlotTexts]\r\nproject name = Harbour basin 4\r\nDate         = 2024-05-17\r\n\r\n");
    IniFile file;
    EXPECT_TRUE(file.OpenText(written.Text()).Empty());
    CKeywords read;
    read.Read(file["PlotTexts"]);
    EXPECT_EQ(Rows(read), "project name=Harbour basin 4*0 Date=2024-05-17*0 ");
}

TEST(Keywords, ReadOneLineLists) {
    const struct {
        std::string text;
        const char* rows;
    } cases[] = {
        {"", ""},
        {"a", "a=*1 "},
        {"a%b%a", "a=*2 b=*1 "},
        {"%a%%b%", "a=*1 b=*1 "},
        {" a ,b%\n", " a ,b=*1 \n=*1 "},
    };
    for (const auto& [text, rows] : cases) {
        CKeywords table = Table({Keyword("old", "1", 1)});
        table.FromString(text);
        EXPECT_EQ(Rows(table), rows) << text;
    }
}

TEST(Keywords, NamesSurviveTheOneLineList) {
    const std::string odd("n\0ul", 4);
    const CKeywords table =
        Table({Keyword("project name", "1", 1), Keyword(odd, "2", 2), Keyword("Z", "3", 3)});
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
