// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/marlin_string.h>

#include <string>

#include <gtest/gtest.h>

namespace {

// Each item in angle brackets.
template <class List>
std::string ItemsOf(const List& list) {
    std::string items;
    for (int i = 0; i < list.Size(); ++i) {
        items.append("<").append(std::string(list[i])).append(">");
    }
    return items;
}

TEST(ItemLists, ATextSplitsIntoOneMoreItemThanSeparatorsAndJoinsBack) {
    const struct {
        const char* Text;
        const char* All;
        const char* Filled;
    } splits[] = {{"", "", ""},
                  {"a", "<a>", "<a>"},
                  {",", "<><>", ""},
                  {"a,,b", "<a><><b>", "<a><b>"},
                  {", a ,", "<>< a ><>", "< a >"}};
    for (const auto& [text, all, filled] : splits) {
        const FormatString standard(text, ',');
        EXPECT_EQ(ItemsOf(standard), all) << text;
        EXPECT_EQ(standard.String(), text);
        const CMarlinString framework(text, ',', true);
        EXPECT_EQ(ItemsOf(framework), all) << text;
        EXPECT_STREQ(framework.String(), text);
        EXPECT_EQ(ItemsOf(CMarlinString(text, ',', false)), filled) << text;
    }
}

TEST(FormatString, AppendedItemsAreFoundAndJoined) {
    FormatString list(',');
    EXPECT_EQ(list.String(), "");
    list += "X_TICKS";
    list += "a,b";
    EXPECT_EQ(ItemsOf(list), "<X_TICKS><a,b>");
    EXPECT_EQ(list.String(), "X_TICKS,a,b");
    EXPECT_TRUE(list.HasSubString("X_TICKS"));
    for (const char* const other : {"X_TICK", "x_ticks", ""}) {
        EXPECT_FALSE(list.HasSubString(other)) << other;
    }
}

TEST(MarlinString, AnItemSetBeyondTheEndFillsTheListWithEmptyItems) {
    CMarlinString list(',');
    list.Set(2, "c");
    list.SetItem(0, CString("a%b"));
    list.SetSeparator('%');
    EXPECT_STREQ(list.String(), "a%b%%c");
    list.SetItem(5, list[2]);
    list.Set(2, nullptr);
    EXPECT_EQ(ItemsOf(list), "<a%b><><><><><c>");
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
    constexpr Conversion table[] = {{"x", 99, 99, 99.0F, 99},
                                    {"x, 7 ,y", 7, 7, 7.0F, 99},
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

TEST(MarlinString, ATextItemIsReadWhereThereIsOne) {
    const CMarlinString list("a", ',', true);
    for (const int index : {-1, 1, 1000}) {
        CString text("kept");
        EXPECT_FALSE(list.GetItem(index, text));
        EXPECT_STREQ(text, "kept");
    }
    CString text;
    EXPECT_TRUE(list.GetItem(0, text));
    EXPECT_STREQ(text, "a");
}

}  // namespace
