// SPDX-License-Identifier: MIT
#include <marlin/keywords/list_keywords.h>

#include <string>

#include <gtest/gtest.h>
#include <stdlib.h>
#include <support/temporary_folder.h>

namespace {

// A folder of data files that look-ups find before all others.
class ListKeywordsTest : public testing::Test {
protected:
    ListKeywordsTest() { ::setenv("MARLIN_DATA_DIR", m_Folder.File("data").c_str(), 1); }

    void Write(const std::string& text) const { m_Folder.Write("data/keywords/Keywords", text); }

    const TemporaryFolder m_Folder;
};

// Each choice of a keyword, in brackets.
std::string Choices(CListKeyword* keyword) {
    std::string text;
    for (int i = 0; keyword && i < keyword->GetSize(); ++i) {
        text += "[" + keyword->GetValue(i) + "]";
    }
    return text;
}

// All of a table as "name[choice][choice] ".
std::string All(CListKeywords& table) {
    std::string text;
    for (int i = 0; CListKeyword* const keyword = table.GetListKeyword(i); ++i) {
        text += keyword->GetName() + Choices(keyword) + " ";
    }
    return text;
}

TEST(ListKeyword, HoldsEachChoiceOnce) {
    CListKeyword keyword;
    keyword.SetName("client");
    for (const char* const value : {"B", "A", "B", "", "a", "A", ""}) {
        keyword.AddValue(value);
    }
    EXPECT_EQ(Choices(&keyword), "[B][A][][a]");
    EXPECT_EQ(keyword.GetValue(-1) + keyword.GetValue(4), "");
    CListKeyword copy = keyword;
    copy.AddValue("A");
    copy.AddValue("new");
    EXPECT_EQ(Choices(&copy), "[B][A][][a][new]");
    keyword.Clear();
    keyword.AddValue("A");
    EXPECT_EQ(keyword.GetName() + Choices(&keyword), "client[A]");
}

TEST_F(ListKeywordsTest, AreTheSectionsOfTheFile) {
    const struct {
        const char* text;
        const char* expected;
    } cases[] = {
        {"[project client]\nFirst client\nSecond client\n\n[project contractor]\nSurvey company\n",
         "project client[First client][Second client] project contractor[Survey company] "},
        {"[project client]\r\nA\r\nB\r\nA\r\n", "project client[A][B] "},
        {"[n]\nName = x\n= y\n;a comment\nB ; note", "n[Name][][B] "},
        {"before\n[n]\n[ m ]\nx", "n  m [x] "},
        {"[n]\na\n[N]\nb\n[m]\nc", "n[a] "},
        {"[n]\na\nA", "n[a][A] "},
        {"\xEF\xBB\xBF[klient]\n\xC3\x85", "klient[\xC3\x85] "},
        {"[klient]\n\xC3\x85", "klient[\xC3\x85] "},
        {"", ""}};
    for (const auto& [text, expected] : cases) {
        Write(text);
        CListKeywords table;
        EXPECT_EQ(All(table), expected) << text;
    }
}

// The one of the process can be tried in one case alone.
TEST_F(ListKeywordsTest, AreFoundByNameAndPosition) {
    CListKeywords& table = CListKeywords::Get();
    Write("[Project Client]\nA\n[project task]\nB\n");
    EXPECT_EQ(table.GetListKeyword("project client"), nullptr);
    EXPECT_EQ(Choices(table.GetListKeyword("Project Client")), "[A]");
    EXPECT_EQ(table.GetListKeyword("project task"), table.GetListKeyword(1));
    EXPECT_EQ(table.GetListKeyword(-1), nullptr);
    EXPECT_EQ(table.GetListKeyword(2), nullptr);
}

TEST_F(ListKeywordsTest, AreReadOnceATable) {
    CListKeywords late;
    for (const char* const name : {"n", "m"}) {
        CListKeywords early;
        Write("");
        EXPECT_EQ(early.GetListKeyword(name), nullptr);
        Write("[" + std::string(name) + "]\na\n");
        EXPECT_EQ(early.GetListKeyword(name), nullptr);
        EXPECT_EQ(All(late), "n[a] ");
    }
}

TEST(ListKeywordsSample, InstalledListsAreWholeAndOfPredefinedNames) {
    ::setenv("MARLIN_DATA_DIR", MARLIN_SOURCE_DIR "/share/marlin", 1);
    CListKeywords table;
    for (const char* const name : {"project client", "project contractor", "project task"}) {
        CListKeyword* const keyword = table.GetListKeyword(name);
        ASSERT_NE(keyword, nullptr) << name;
        EXPECT_GE(keyword->GetSize(), 1) << name;
        EXPECT_EQ(Choices(keyword).find("[]"), std::string::npos) << name;
    }
    EXPECT_EQ(table.GetListKeyword(3), nullptr);
}

}  // namespace
