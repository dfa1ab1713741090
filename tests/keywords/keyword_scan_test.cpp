// SPDX-License-Identifier: MIT
#include <marlin/keywords/keywords.h>

#include <map>
#include <string>
#include <string_view>

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

// The rules, a byte at a time.
std::map<std::string, int> CountsByRule(std::string_view text) {
    std::map<std::string, int> counts;
    bool inside = false;
    std::string name;
    for (const char c : text) {
        if (!inside) {
            inside = c == '%';
        } else if (c == '%' || c == '\n' || c == '\r' || c == '\0') {
            if (c == '%' && !name.empty()) {
                ++counts[name];
            }
            name.clear();
            inside = false;
        } else {
            name += c;
        }
    }
    return counts;
}

std::map<std::string, int> CountsOf(const CKeywords& keywords) {
    std::map<std::string, int> counts;
    for (int i = 0; i < keywords.GetSize(); ++i) {
        counts[keywords.GetKeywordConst(i)->m_Key] = keywords.GetKeywordConst(i)->m_RefCount;
    }
    return counts;
}

TEST(KeywordScan, FindsTheNamesBetweenPercentSigns) {
    const struct {
        std::string text;
        const char* keywords;
    } cases[] = {
        {"Title %project name% on %current date%", "project name*1 current date*1 "},
        {"", ""},
        {"no keyword", ""},
        {"%", ""},
        {"%%", ""},
        {"%%%", ""},
        {"%%%%", ""},
        {"%%a%", ""},
        {"%%%a%", "a*1 "},
        {"%a%%b%", "a*1 b*1 "},
        {"%a%b%c%", "a*1 c*1 "},
        {"%a% %a%", "a*2 "},
        {"%Date%%date%", "Date*1 date*1 "},
        {"% a %", " a *1 "},
        {"%open", ""},
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
}

TEST(KeywordScan, NamesOfEveryLengthEndWhereTheyShould) {
    for (std::size_t length = 1; length < 40; ++length) {
        const std::string name(length, 'n');
        EXPECT_EQ(KeywordsIn("%" + name + "%"), name + "*1 ");
        EXPECT_EQ(KeywordsIn("%" + name), "");
        EXPECT_EQ(KeywordsIn("%" + name + "\n%x%" + name + "%"), "x*1 ");
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
    keywords.AddKeywordsInString("%a%%b%%c%%d%%e%%f%%g%%h%%i%%j%%k%");
    keywords.GetKeyword("j")->m_Key = "z";
    keywords.AddKeywordsInString("%a%%b%%c%%d%%e%%f%%g%%h%%i%%j%%z%");
    EXPECT_EQ(keywords.GetKeyword("z")->m_RefCount, 2);
    EXPECT_EQ(keywords.GetKeyword("j")->m_RefCount, 1);
    EXPECT_EQ(keywords.GetSize(), 12);
}

TEST(KeywordScan, AgreesWithTheRulesOnTextsOfEveryMixture) {
    const std::string_view letters("%%%ab%\n%\r%abcdefg\0", 19);
    unsigned int random = 1;
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (int i = 0; i < 60; ++i) {
            random = random * 1664525U + 1013904223U;
            text += letters[(random >> 16) % letters.size()];
        }
        CKeywords keywords;
        keywords.AddKeywordsInString(text);
        ASSERT_EQ(CountsOf(keywords), CountsByRule(text)) << text;
    }
}

// So many that some names share a 32-bit hash.
TEST(KeywordScan, TakesAMillionKeywordsInOneText) {
    std::string text;
    for (int i = 0; i < 1'000'000; ++i) {
        text += "%keyword " + std::to_string(i) + "%";
    }
    CKeywords keywords;
    keywords.AddKeywordsInString(text + "%keyword 777777%");
    ASSERT_EQ(keywords.GetSize(), 1'000'000);
    EXPECT_EQ(keywords.GetKeyword(999'999)->m_Key, "keyword 999999");
    EXPECT_EQ(keywords.GetKeyword(777'777)->m_RefCount, 2);
    EXPECT_EQ(keywords.GetKeyword(777'776)->m_RefCount, 1);
}

TEST(KeywordScan, TakesALongTextWithoutAClosedKeyword) {
    std::string text(100'000'000, 'x');
    EXPECT_EQ(KeywordsIn(text), "");
    text.front() = '%';
    EXPECT_EQ(KeywordsIn(text), "");
    text.back() = '%';
    CKeywords keywords;
    keywords.AddKeywordsInString(text);
    ASSERT_EQ(keywords.GetSize(), 1);
    EXPECT_EQ(keywords.GetKeyword(0)->m_Key.size(), text.size() - 2);
}

}  // namespace
