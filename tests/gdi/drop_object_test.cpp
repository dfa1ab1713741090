// SPDX-License-Identifier: MIT
#include <marlin/gdi/drop_object.h>

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(DropObject, IsEmptyAtFirst) {
    const DropObject object;
    EXPECT_EQ(object.Type(), 4);
    EXPECT_TRUE(object.Data().IsEmpty());
    EXPECT_EQ(object.ToString(), "4,");
}

TEST(DropObject, WritesKindAndText) {
    EXPECT_EQ(DropObject(DropObject::OBJECT_2, "Survey Lines").ToString(), "2,Survey Lines");
    EXPECT_EQ(DropObject(static_cast<DropObject::TYPE>(-7), "x").ToString(), "-7,x");
}

TEST(DropObject, ReadsKindsOneToThreeWithAText) {
    struct Case {
        const char* Text;
        int Type;
        const char* Data;
    };
    const Case cases[] = {
        {"3,a,b", 3, "a,b"},  {"1,x", 1, "x"},  {"2,", 4, ""},  {"5,abc", 4, ""},
        {"0,abc", 4, ""},     {"4,abc", 4, ""}, {"abc", 4, ""}, {"", 4, ""},
        {" 2 m, c", 2, " c"}, {"2,,", 2, ","},  {"2a,", 4, ""}, {"2", 4, ""},
        {"-2,abc", 4, ""},    {",2", 4, ""},
    };
    for (const Case& c : cases) {
        DropObject object(DropObject::OBJECT_1, "before");
        object.FromString(c.Text);
        EXPECT_EQ(object.Type(), c.Type) << c.Text;
        EXPECT_EQ(object.Data(), c.Data) << c.Text;
    }
}

TEST(DropObject, ComesBackFromItsTextUnlessItHasNoData) {
    for (const char* data : {"a", ",", "a,b,", "\xE9t\xE9", " "}) {
        DropObject read;
        read.FromString(DropObject(DropObject::OBJECT_3, data).ToString());
        EXPECT_EQ(read.Type(), DropObject::OBJECT_3) << data;
        EXPECT_EQ(read.Data(), data);
    }
    DropObject read(DropObject::OBJECT_3, "x");
    read.FromString(DropObject(DropObject::OBJECT_3, "").ToString());
    EXPECT_EQ(read.Type(), DropObject::NO_OBJECT);
    EXPECT_TRUE(read.Data().IsEmpty());
}

}  // namespace
