// SPDX-License-Identifier: MIT
#include <marlin/settings/section_key.h>

#include <cstddef>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

template <class T>
T ReadInto(const char* text, T target) {
    SectionKey("Name", text) >> target;
    return target;
}

// The texts of the values, each ended by a "|".
template <class... T>
std::string Written(const T&... values) {
    std::string text;
    ((text += (SectionKey("Name", "before") << values).GetValue() + "|"), ...);
    return text;
}

// What compiles: a key made of the arguments, a value put in.
template <class... Arguments>
concept MakesKey = requires(Arguments... arguments) {
    SectionKey(arguments...);
};
template <class Text>
concept IsText = requires(SectionKey key, Text text) {
    key << text;
    key.SetComments(text);
};
static_assert(MakesKey<const char*, long, const char*> && IsText<const char*>);
static_assert(!MakesKey<std::nullptr_t> && !MakesKey<std::nullptr_t, int>);
static_assert(!MakesKey<const char*, std::nullptr_t> &&
              !MakesKey<const char*, int, std::nullptr_t>);
static_assert(!MakesKey<const char*, std::nullptr_t, const char*> &&
              !MakesKey<const char*, const char*, std::nullptr_t>);
static_assert(!IsText<std::nullptr_t>);

TEST(SectionKey, WritesEachTypeInItsTextForm) {
    EXPECT_EQ(Written(-12, std::numeric_limits<int>::min(), 4294967295U, 4294967295UL),
              "-12|-2147483648|4294967295|4294967295|");
    EXPECT_EQ(Written(-2147483648L, 2147483647L, true, false), "-2147483648|2147483647|1|0|");
    EXPECT_EQ(Written(0.1F, 2.5, 1e6, 1e-7, -1e-7),
              "0.100000|2.500000|1000000.000000|0.000000|-0.000000|");
    EXPECT_EQ(Written(std::string(" a; b "), "text", CString("ctext")), " a; b |text|ctext|");
}

TEST(SectionKey, LeavesTheValueForALongBeyond32Bits) {
    for (const long value : {2147483648L, -2147483649L, std::numeric_limits<long>::max()}) {
        SectionKey key("Name", "before");
        EXPECT_DEBUG_DEATH(key << value, "fits") << value;
        EXPECT_EQ(key.GetValue(), "before");
    }
}

// 99 stands for unchanged.
TEST(SectionKey, ReadsTheLeadingNumberAndLeavesTheTargetWithoutOne) {
    struct Case {
        const char* Text;
        int Signed;
        unsigned int Unsigned;
        double Decimal;
    };
    for (const Case& c : {Case{"12abc", 12, 12, 12},
                          Case{"\t\n 7", 7, 7, 7},
                          Case{"", 99, 99, 99},
                          Case{"abc", 99, 99, 99},
                          Case{"3.9", 3, 3, 3.9},
                          Case{"+5", 5, 5, 5},
                          Case{"-5", -5, 99, -5},
                          Case{"+-5", 99, 99, 99},
                          Case{"- 5", 99, 99, 99},
                          Case{"0x10", 0, 0, 0},
                          Case{"2147483647", 2147483647, 2147483647, 2147483647},
                          Case{"2147483648", 99, 2147483648, 2147483648},
                          Case{"-2147483649", 99, 99, -2147483649.0},
                          Case{"4294967295", 99, 4294967295, 4294967295},
                          Case{"4294967296", 99, 99, 4294967296.0},
                          Case{"1e3", 1, 1, 1000},
                          Case{"1e", 1, 1, 1},
                          Case{" -.5x", 99, 99, -0.5},
                          Case{"1,5", 1, 1, 1},
                          Case{"1e400", 1, 1, 99},
                          Case{"1e-400", 1, 1, 0},
                          Case{".", 99, 99, 99},
                          Case{"inf", 99, 99, 99},
                          Case{"nan", 99, 99, 99}}) {
        EXPECT_EQ(ReadInto(c.Text, 99), c.Signed) << c.Text;
        EXPECT_EQ(ReadInto(c.Text, 99L), c.Signed) << c.Text;
        EXPECT_EQ(ReadInto(c.Text, 99U), c.Unsigned) << c.Text;
        EXPECT_EQ(ReadInto(c.Text, 99UL), c.Unsigned) << c.Text;
        EXPECT_EQ(ReadInto(c.Text, 99.0), c.Decimal) << c.Text;
    }
    EXPECT_EQ(ReadInto("2.5", 0.0F), 2.5F);
    EXPECT_EQ(ReadInto("1e39", 7.0F), 7.0F);
}

TEST(SectionKey, ABoolIsAnIntegerZeroOrOne) {
    for (const bool before : {false, true}) {
        EXPECT_TRUE(ReadInto("1", before));
        EXPECT_FALSE(ReadInto(" 0", before));
        for (const char* const text : {"true", "false", "2", "-1", "", "99999999999"}) {
            EXPECT_EQ(ReadInto(text, before), before) << text;
        }
    }
}

TEST(SectionKey, IsMadeFromNameValueAndCommentAndComparedByName) {
    SectionKey key("Width", 2.5F, " in mm");
    EXPECT_EQ(key.GetValue() + key.GetComments(), "2.500000 in mm");
    EXPECT_EQ(SectionKey("Width", "wide").GetValue() + SectionKey("On", true).GetValue(), "wide1");
    EXPECT_EQ(key, SectionKey("WIDTH"));
    EXPECT_FALSE(SectionKey("").IsValid());
    key << 5 << "  kept ";
    std::string text;
    CString framework;
    key >> text >> framework;
    EXPECT_EQ(text + framework.GetString(), "  kept   kept ");
}

}  // namespace
