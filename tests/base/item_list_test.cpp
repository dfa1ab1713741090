// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/marlin_string.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Items = std::vector<std::string>;

Items ItemsOf(const FormatString& list) {
    Items items;
    for (int i = 0; i < list.Size(); ++i) {
        items.push_back(list[i]);
    }
    return items;
}

Items ItemsOf(const CMarlinString& list) {
    Items items;
    for (int i = 0; i < list.Size(); ++i) {
        items.emplace_back(list[i].View());
    }
    return items;
}

struct Split {
    const char* Text;
    Items All;
    Items Filled;
};

const Split splits[] = {{"", {}, {}},
                        {"a", {"a"}, {"a"}},
                        {",", {"", ""}, {}},
                        {"a,,b", {"a", "", "b"}, {"a", "b"}},
                        {", a ,", {"", " a ", ""}, {" a "}}};

TEST(ItemLists, ATextSplitsIntoOneMoreItemThanSeparatorsAndJoinsBack) {
    for (const Split& row : splits) {
        const FormatString standard(row.Text, ',');
        EXPECT_EQ(ItemsOf(standard), row.All) << row.Text;
        EXPECT_EQ(standard.String(), row.Text);
        const CMarlinString framework(row.Text, ',', true);
        EXPECT_EQ(ItemsOf(framework), row.All) << row.Text;
        EXPECT_STREQ(framework.String(), row.Text);
    }
}

TEST(ItemLists, EmptyItemsAreLeftOutOnRequest) {
    for (const Split& row : splits) {
        EXPECT_EQ(ItemsOf(CMarlinString(row.Text, ',', false)), row.Filled) << row.Text;
    }
}

TEST(FormatString, AppendedItemsAreFoundAndJoined) {
    FormatString list(',');
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.String(), "");
    list += "X_TICKS";
    list += "a,b";
    EXPECT_EQ(ItemsOf(list), (Items{"X_TICKS", "a,b"}));
    EXPECT_EQ(list.String(), "X_TICKS,a,b");
    EXPECT_TRUE(list.HasSubString("X_TICKS"));
    EXPECT_FALSE(list.HasSubString("X_TICK"));
    EXPECT_FALSE(list.HasSubString("x_ticks"));
    EXPECT_FALSE(list.HasSubString(""));
}

TEST(MarlinString, AnItemSetBeyondTheEndFillsTheListWithEmptyItems) {
    CMarlinString list(',');
    list.Set(2, "c");
    list.SetItem(0, CString("a"));
    list.SetSeparator('%');
    EXPECT_STREQ(list.String(), "a%%c");
    list.SetItem(5, list[2]);
    list.Set(2, nullptr);
    EXPECT_EQ(ItemsOf(list), (Items{"a", "", "", "", "", "c"}));
}

TEST(MarlinString, AnItemThatHoldsTheSeparatorKeepsItsPlace) {
    CMarlinString list('%');
    list.Set(0, "a%b");
    list.Set(1, "c");
    EXPECT_EQ(ItemsOf(list), (Items{"a%b", "c"}));
    EXPECT_EQ(ItemsOf(CMarlinString(list.String(), '%', true)), (Items{"a", "b", "c"}));
}

// Each row: the item, then what it reads as, 99 standing for what was there before.
struct Conversion {
    const char* Item;
    int Integer;
    unsigned long Word;
    float Decimal;
    int Flag;
};

template <class T>
void ExpectItem(const Conversion& row, T before, T expected) {
    T value = before;
    EXPECT_EQ(CMarlinString(row.Item, ',', true).GetItem(1, value), expected != before) << row.Item;
    EXPECT_EQ(value, expected) << row.Item;
}

TEST(MarlinString, AnItemConvertsWholeOrLeavesTheTarget) {
    constexpr Conversion table[] = {{"x, 7 ,y", 7, 7, 7.0F, 99},
                                    {"x,12abc", 99, 99, 99.0F, 99},
                                    {"x,", 99, 99, 99.0F, 99},
                                    {"x,1", 1, 1, 1.0F, 1},
                                    {"x,0", 0, 0, 0.0F, 0},
                                    {"x,2147483648", 99, 2147483648UL, 2147483648.0F, 99},
                                    {"x,4294967295", 99, 4294967295UL, 4294967296.0F, 99},
                                    {"x,4294967296", 99, 99, 4294967296.0F, 99},
                                    {"x,2.5e1", 99, 99, 25.0F, 99},
                                    {"x,-1", -1, 99, -1.0F, 99}};
    for (const Conversion& row : table) {
        ExpectItem<int>(row, 99, row.Integer);
        ExpectItem<unsigned long>(row, 99, row.Word);
        ExpectItem<float>(row, 99, row.Decimal);
        ExpectItem<bool>(row, row.Flag == 0, row.Flag == 99 ? row.Flag == 0 : row.Flag == 1);
    }
}

TEST(MarlinString, AnItemOutsideTheListIsNotThere) {
    const CMarlinString list("a", ',', true);
    for (const int index : {-1, 1, 1000}) {
        CString text("kept");
        int number = 5;
        EXPECT_FALSE(list.GetItem(index, text));
        EXPECT_FALSE(list.GetItem(index, number));
        EXPECT_STREQ(text, "kept");
        EXPECT_EQ(number, 5);
    }
    CString text;
    EXPECT_TRUE(list.GetItem(0, text));
    EXPECT_STREQ(text, "a");
}

}  // namespace
