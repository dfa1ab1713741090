// SPDX-License-Identifier: MIT
#include "keyword_tables.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// Of keywords whose values are their names, each as "name*count ".
std::string KeywordsIn(const std::string& text) {
    CKeywords keywords;
    keywords.AddKeywordsInString(text);
    std::string found;
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        EXPECT_EQ(keyword.m_Value, keyword.m_Key);
        found += keyword.m_Key + "*" + std::to_string(keyword.m_RefCount) + " ";
    }
    return found;
}

TEST(KeywordScan, FindsTheNamesBetweenPercentSigns) {
    const std::pair<std::string, const char*> cases[] = {
        {"Title %project name% on %current date%", "project name*1 current date*1 "},
        {"%%%a%", "a*1 "},
        {"%a%%b%", "a*1 b*1 "},
        {"%a%b%c%", "a*1 c*1 "},
        {"%a% %a%", "a*2 "},
        {"%Date%%date%", "Date*1 date*1 "},
        {"% a %", " a *1 "},
        {"%a%open", "a*1 "},
        {"50% of %depth%", " of *1 "},
        {"%ab\ncd%ef%", "ef*1 "},
        {"%ab\rcd%ef%", "ef*1 "},
        {"%ab\0cd%ef%"s, "ef*1 "},
        {"%\n%a%", "a*1 "},
        {"%a%\0%b%"s, "a*1 b*1 "},
        {"%\x01\x09\x0B\x24\x26\x8A\x8D\xA5\xFF%", "\x01\x09\x0B\x24\x26\x8A\x8D\xA5\xFF*1 "},
    };
    for (const auto& [text, keywords] : cases) {
        EXPECT_EQ(KeywordsIn(text), keywords) << text;
    }
    for (const char* text : {"", "no keyword", "%", "%%", "%%%", "%%%%", "%%a%", "%open"}) {
        EXPECT_EQ(KeywordsIn(text), "") << text;
    }
}

TEST(KeywordScan, CountsGoOnFromTextToText) {
    CKeywords keywords;
    for (int i = 0; i < 20; ++i) {
        keywords.AddKeywordsInString("Title %project name% on %date%");
    }
    CKeyword* const date = keywords.GetKeyword("date");
    date->m_Value = "today";
    keywords.AddKeywordsInString("%date%%a%");
    EXPECT_EQ(Rows(keywords), "project name=project name*20 date=today*21 a=a*1 ");
    EXPECT_EQ(keywords.GetKeywordConst("date"), date);
}

TEST(KeywordScan, ANameChangedByTheHostIsAnotherOne) {
    CKeywords keywords;
    keywords.AddKeywordsInString("%a%%b%%c%");
    CKeyword* const kept = keywords.GetKeyword("b");
    for (const char* const name : {"y", "z"}) {
        keywords.AddKeywordsInString("%b%%c%");
        kept->m_Key = name;
        EXPECT_EQ(keywords.GetKeywordConst(name), kept);
        keywords.AddKeywordsInString("%a%%" + std::string(name) + "%");
    }
    keywords.AddKeyword(kept);
    EXPECT_EQ(Rows(keywords), "a=a*3 z=b*8 c=c*3 b=b*1 ");
}

TEST(KeywordScan, NamesAreFoundAfterEveryChangeOfTheTable) {
    CKeywords keywords = Numbered(0, 5);
    CKeywords other;
    const auto expectAll = [&keywords](int size) {
        keywords.AddKeywordsInString("%new%");
        EXPECT_EQ(keywords.GetSize(), size);
        for (int i = 0; i < size; ++i) {
            const CKeyword* const keyword = keywords.GetKeywordConst(i);
            EXPECT_EQ(keywords.GetKeywordConst(keyword->m_Key), keyword) << keyword->m_Key;
        }
    };
    expectAll(6);
    keywords.RemoveKeyword("1", true);
    expectAll(5);
    keywords.ExcludeKeywords(Numbered(2, 1));
    expectAll(4);
    other = Numbered(3, 1);
    other.AddRefcountRemove(keywords);
    expectAll(3);
    const CKeyword* const first = keywords.GetKeywordConst(0);
    other = std::move(keywords);
    EXPECT_EQ(other.GetKeywordConst("0"), first) << "a moved table keeps its keywords in place";
    keywords = CKeywords(other);
    expectAll(3);
    keywords = Numbered(0, 5);
    expectAll(6);
    keywords.Clear();
    expectAll(1);
}

TEST(KeywordScan, TakesManyKeywordsInManyTextsAndMovesThemForNothing) {
    CKeywords keywords = Numbered(0, 100'000);
    for (int i = 50'000; i < 150'000; ++i) {
        keywords.AddKeywordsInString("%" + std::to_string(i) + "%");
    }
    for (int i = 0; i < 10'000; ++i) {  // copies would take minutes
        CKeywords other = std::move(keywords);
        keywords = std::move(other);
    }
    ASSERT_EQ(keywords.GetSize(), 150'000);
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        ASSERT_EQ(keyword.m_Key, std::to_string(i));
        ASSERT_EQ(keyword.m_RefCount, i >= 50'000 && i < 100'000 ? 2 : 1) << i;
    }
}

TEST(KeywordScan, TakesALongTextWithoutAClosedKeyword) {
    std::string text(1'000'000, 'x');
    text.front() = '%';
    EXPECT_EQ(KeywordsIn(text), "");
    text.back() = '%';
    EXPECT_EQ(KeywordsIn(text).size(), text.size() - 2 + 3);
}

}  // namespace
