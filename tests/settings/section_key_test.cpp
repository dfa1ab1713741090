// SPDX-License-Identifier: MIT
#include <marlin/settings/section_key.h>

#include <cstddef>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

template <class T>
T ReadInto(const char* text, T target) {
    SectionKey key("Name");
    key << text;
    key >> target;
    return target;
}

template <class T>
std::string Written(const T& value) {
    SectionKey key("Name");
    key << value;
    return key.GetValue();
}

// What compiles: a key made of the arguments, a value put in.
template <class... Arguments>
concept MakesKey = requires(Arguments... arguments) {
    SectionKey(arguments...);
};
template <class Value>
concept IsValue = requires(SectionKey key, Value value) {
    key << value;
};
template <class Text>
concept IsComment = requires(SectionKey key, Text text) {
    key.SetComments(text);
};
static_assert(MakesKey<const char*, long, const char*> && IsValue<long>);
static_assert(IsValue<const char*> && IsComment<const char*>);
static_assert(!MakesKey<std::nullptr_t> && !MakesKey<std::nullptr_t, int>);
static_assert(!MakesKey<const char*, std::nullptr_t> &&
              !MakesKey<const char*, std::nullptr_t, const char*>);
static_assert(!MakesKey<const char*, int, std::nullptr_t> &&
              !MakesKey<const char*, const char*, std::nullptr_t>);
static_assert(!IsValue<std::nullptr_t> && !IsComment<std::nullptr_t>);

TEST(SectionKey, WritesEachTypeInItsTextForm) {
    EXPECT_EQ(Written(-12), "-12");
    EXPECT_EQ(Written(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Written(4294967295U), "4294967295");
    EXPECT_EQ(Written(4294967295UL), "4294967295");
    EXPECT_EQ(Written(-2147483648L) + SectionKey("", 2147483647L).GetValue(),
              "-21474836482147483647");
    EXPECT_EQ(Written(true), "1");
    EXPECT_EQ(Written(false), "0");
    EXPECT_EQ(Written(0.1F), "0.100000");
    EXPECT_EQ(Written(2.5), "2.500000");
    EXPECT_EQ(Written(1e6), "1000000.000000");
    EXPECT_EQ(Written(1e-7), "0.000000");
    EXPECT_EQ(Written(-0.0000001), "-0.000000");
    EXPECT_EQ(Written(std::string(" a; b ")), " a; b ");
    EXPECT_EQ(Written("text"), "text");
    EXPECT_EQ(Written(CString("text")), "text");
}

TEST(SectionKey, LeavesTheValueForALongBeyond32Bits) {
    for (const long value : {2147483648L, -2147483649L, std::numeric_limits<long>::max()}) {
        SectionKey key("Name", "before");
        EXPECT_DEBUG_DEATH(key << value, "fits") << value;
        EXPECT_EQ(key.GetValue(), "before");
    }
}

TEST(SectionKey, ReadsTheLeadingNumberAndLeavesTheTargetWithoutOne) {
    struct Case {
        const char* Text;
        int AsInt;  // 99 stands for unchanged
    };
    for (const Case& c : {Case{"12abc", 12}, Case{" 7", 7}, Case{"\t\n7", 7}, Case{"", 99},
                          Case{"abc", 99}, Case{"3.9", 3}, Case{"+5", 5}, Case{"-5", -5},
                          Case{"+-5", 99}, Case{"2147483647", 2147483647}, Case{"2147483648", 99},
                          Case{"-2147483649", 99}, Case{"0x10", 0}, Case{"- 5", 99}}) {
        EXPECT_EQ(ReadInto(c.Text, 99), c.AsInt) << c.Text;
        EXPECT_EQ(ReadInto(c.Text, 99L), c.AsInt) << c.Text;
    }
    EXPECT_EQ(ReadInto("4294967295", 7U), 4294967295U);
    EXPECT_EQ(ReadInto("-1", 7U), 7U);
    EXPECT_EQ(ReadInto("4294967296", 7U), 7U);
    EXPECT_EQ(ReadInto("4294967295", 7UL), 4294967295UL);
    EXPECT_EQ(ReadInto("4294967296", 7UL), 7UL);
    EXPECT_EQ(ReadInto("+8", 7UL), 8UL);
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

TEST(SectionKey, ReadsDecimalNumbersWithFractionAndExponent) {
    EXPECT_EQ(ReadInto("2.5", 0.0), 2.5);
    EXPECT_EQ(ReadInto("1e3", 0.0), 1000.0);
    EXPECT_EQ(ReadInto("1e", 0.0), 1.0);
    EXPECT_EQ(ReadInto(" -.5x", 0.0), -0.5);
    EXPECT_EQ(ReadInto("1,5", 0.0), 1.0);
    EXPECT_EQ(ReadInto("2.5", 0.0F), 2.5F);
    EXPECT_EQ(ReadInto("1e39", 7.0F), 7.0F);
    EXPECT_EQ(ReadInto("1e400", 7.0), 7.0);
    EXPECT_EQ(ReadInto("1e-400", 7.0), 0.0);
    for (const char* const text : {"", ".", "-", "e5", "inf", "nan", "abc"}) {
        EXPECT_EQ(ReadInto(text, 7.0), 7.0) << text;
    }
}

TEST(SectionKey, TextsPassUnchangedAndALaterValueReplacesAnEarlierOne) {
    SectionKey key("Name");
    key << 5 << "  spaces kept ";
    std::string text;
    CString framework;
    key >> text >> framework;
    EXPECT_EQ(text, "  spaces kept ");
    EXPECT_STREQ(framework, "  spaces kept ");
}

TEST(SectionKey, IsMadeFromNameValueAndCommentAndComparedByName) {
    const SectionKey typed("Width", 2.5F, " in mm");
    EXPECT_EQ(typed.GetValue(), "2.500000");
    EXPECT_EQ(typed.GetComments(), " in mm");
    EXPECT_EQ(SectionKey("Width", "wide").GetValue(), "wide");
    EXPECT_EQ(SectionKey("On", true).GetValue(), "1");
    EXPECT_EQ(SectionKey("Color", 255UL, "").GetComments(), "");
    EXPECT_EQ(typed, SectionKey("WIDTH"));
    EXPECT_FALSE(SectionKey("").IsValid());
    SectionKey copy = typed;
    const SectionKey renamed(copy.GetName(), std::string("2"), " new");
    EXPECT_EQ(renamed, copy);
    EXPECT_EQ(renamed.GetValue() + renamed.GetComments(), "2 new");
    EXPECT_EQ(SectionKey(copy.GetName(), "3", "").GetValue(), "3");
    copy.SetComments("other");
    EXPECT_EQ(typed.GetComments(), " in mm");
}

}  // namespace
