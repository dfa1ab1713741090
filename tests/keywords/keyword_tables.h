// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/keywords/keywords.h>
#include <marlin/settings/section.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

/// One keyword of a table that a test makes.
struct Row {
    std::string Name;
    std::string Value;
    int Count;
};

/// A table as `Read` makes it, so that a name may occur more than once.
inline CKeywords Table(const std::vector<Row>& rows) {
    Section section("Keywords");
    for (const Row& row : rows) {
        section += SectionKey(row.Name, row.Value);
    }
    CKeywords table;
    EXPECT_TRUE(table.Read(section).Empty());
    for (int i = 0; i < table.GetSize(); ++i) {
        table.GetKeyword(i)->m_RefCount = rows[static_cast<std::size_t>(i)].Count;
    }
    return table;
}

/// Each keyword as "name=value*count ".
inline std::string Rows(const CKeywords& table) {
    std::string text;
    for (int i = 0; i < table.GetSize(); ++i) {
        const CKeyword& keyword = *table.GetKeywordConst(i);
        text += keyword.m_Key + "=" + keyword.m_Value + "*" + std::to_string(keyword.m_RefCount);
        text += " ";
    }
    return text;
}

/// Keywords named by the numbers from `first` on, each used once.
inline CKeywords Numbered(int first, int count) {
    CKeywords table;
    for (int i = first; i < first + count; ++i) {
        table.AddKeywordsInString("%" + std::to_string(i) + "%");
    }
    return table;
}
