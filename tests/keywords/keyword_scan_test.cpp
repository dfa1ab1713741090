// SPDX-License-Identifier: MIT
#include "keyword_tables.h"

#include <string>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// Each keyword of a text as "name*count ".
std::string Counted(const CKeywords& keywords) {
    std::string text;
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        EXPECT_EQ(keyword.m_Value, keyword.m_Key);
        text += keyword.m_Key + "*" + std::to_string(keyword.m_RefCount) + " ";
    }
    return text;
}

std::string KeywordsIn(const std::string& text) {
    CKeywords keywords;
    keywords.AddKeywordsInString(text);
    return Counted(keywords);
}

TEST(KeywordScan, FindsTheNamesBetweenPercentSigns) {
    const struct {
        std::string text;
        const char* keywords;
    } cases[] = {
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
        {"%\xE9t\xE9\x80\xFF%", "\xE9t\xE9\x80\xFF*1 "},
        {"%\x01\x09\x0B\x24\x26\x8A\x8D\xA5%", "\x01\x09\x0B\x24\x26\x8A\x8D\xA5*1 "},
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
        keywords.AddKeywordsInString("Title %project name% on %current date%");
    }
    EXPECT_EQ(Counted(keywords), "project name*20 current date*20 ");
    CKeyword* const date = keywords.GetKeyword("current date");
    date->m_Value = "today";
    keywords.AddKeywordsInString("%current date%%a%%b%%c%%d%");
    EXPECT_EQ(date->m_Value, "today");
    EXPECT_EQ(date->m_RefCount, 21);
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
    const auto expectAll = [&keywords] {
        keywords.AddKeywordsInString("%new%");
        for (int i = 0; i < keywords.GetSize(); ++i) {
            const CKeyword* const keyword = keywords.GetKeywordConst(i);
            EXPECT_EQ(keywords.GetKeywordConst(keyword->m_Key), keyword) << keyword->m_Key;
        }
    };
    expectAll();
    keywords.RemoveKeyword("1", true);
    expectAll();
    keywords.ExcludeKeywords(Numbered(2, 1));
    expectAll();
    CKeywords other = Numbered(3, 1);
    other.AddRefcountRemove(keywords);
    expectAll();
    keywords = CKeywords(keywords);
    expectAll();
    keywords.Clear();
    expectAll();
    EXPECT_EQ(Rows(keywords), "new=new*1 ");
}

TEST(KeywordScan, TakesManyKeywordsInOneTextAndInManyTexts) {
    CKeywords keywords = Numbered(0, 100'000);
    for (int i = 50'000; i < 150'000; ++i) {
        keywords.AddKeywordsInString("%" + std::to_string(i) + "%");
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
    CKeywords keywords;
    keywords.AddKeywordsInString(text);
    ASSERT_EQ(keywords.GetSize(), 1);
    EXPECT_EQ(keywords.GetKeyword(0)->m_Key.size(), text.size() - 2);
}

}  // namespace
