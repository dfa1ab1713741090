// SPDX-License-Identifier: MIT
#include <marlin/gdi/drop_object.h>

#include <utility>

#include <gtest/gtest.h>

namespace {

TEST(DropObject, WritesKindAndText) {
    EXPECT_EQ(DropObject().ToString(), "4,");
    EXPECT_EQ(DropObject(static_cast<DropObject::TYPE>(-7), "x").ToString(), "-7,x");
}

TEST(DropObject, ReadsKindsOneToThreeWithATextAndElseNone) {
    const std::pair<const char*, const char*> cases[] = {
        {"3,a,b", "3,a,b"}, {"1,x", "1,x"}, {"3, ", "3, "},   {"3,a,b,", "3,a,b,"},
        {"2,,", "2,,"},     {"2,", "4,"},   {"5,abc", "4,"},  {"3,\xE9t\xE9", "3,\xE9t\xE9"},
        {"0,abc", "4,"},    {"abc", "4,"},  {"4,abc", "4,"},  {" 2 m, c", "2, c"},
        {"2a,", "4,"},      {"2", "4,"},    {"-2,abc", "4,"}, {",2", "4,"},
        {"", "4,"},
    };
    for (const auto& [text, again] : cases) {
        DropObject object(DropObject::OBJECT_1, "before");
        object.FromString(text);
        EXPECT_EQ(object.ToString(), again) << text;
        DropObject own(DropObject::OBJECT_1, text);
        own.FromString(own.Data());
        EXPECT_EQ(own.ToString(), again) << text;
    }
}

}  // namespace
