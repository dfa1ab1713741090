// SPDX-License-Identifier: MIT
#include <marlin/records/depth_label_info.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

std::string ReadAndWritten(const std::string& text) {
    DepthLabelInfo label;
    label.FromString("Courier,8,7,7,1,9,9,1,1,8,9,1,1,0,0,1,1");
    label.FromString(text);
    return label.ToString();
}

TEST(DepthLabelInfo, WritesTheTextStyleAndThenItsOwnFields) {
    TextInfo text;
    text.SetJustification(TextInfo::TOP_CENTER);
    const DepthLabelInfo label = text;
    EXPECT_EQ(label.ToString(), "Arial,2.5,0,5,0,0,0,0,0,0,2,0,0,1,1,0,0");
}

template <class A, class B>
concept Comparable = requires(const A& a, const B& b) {
    a == b;
};

static_assert(!Comparable<DepthLabelInfo, TextInfo> && !Comparable<TextInfo, DepthLabelInfo>);

TEST(DepthLabelInfo, ReadsLayoutsOfEveryLength) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "Arial,2.5,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0"},
        {"Arial,3", "Arial,3,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0"},
        // (255, 0, 0) is index 10, (0, 0, 255) is index 170; their words are 255 and 16711680.
        {"Arial,3,0,0,10,0,0,0,0,255", "Arial,3,0,0,10,0,0,0,0,255,2,0,0,1,1,0,0"},
        {"Arial,3,0,0,10,0,0,0,0,16711680,3", "Arial,3,0,0,170,0,0,0,0,16711680,3,0,0,1,1,0,0"},
        {"Arial,2.5,0,0,0,0,0,0,0,0,4,3,1,0,0,1,1", "Arial,2.5,0,0,0,0,0,0,0,0,4,3,1,0,0,1,1"},
        // The older layout: no color word, no item for the two newest flags.
        {"Arial,3,0,0,1,0,0,0,0,3,1,2,0,1", "Arial,3,0,0,10,0,0,0,0,255,3,1,2,0,1,0,0"},
        {"Arial,2.5,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0,more,items",
         "Arial,2.5,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(ReadAndWritten(text), expected) << text;
    }
}

TEST(DepthLabelInfo, PassesOverChoicesOutOfRange) {
    const std::pair<const char*, const char*> cases[] = {
        {"1,5,2,1,1,0,0", "1,0,2,1,1,0,0"}, {"1,-1,1,1,1,0,0", "1,0,1,1,1,0,0"},
        {"1,4,3,1,1,0,0", "1,4,0,1,1,0,0"}, {"1,4,-1,1,1,0,0", "1,4,0,1,1,0,0"},
        {"x,4,,1,1,,", "0,4,0,1,1,0,0"},    {"-7,0,0,2,-1,0,no", "-7,0,0,1,1,0,0"},
        {"2,0,0,,x,3,9", "2,0,0,0,0,1,1"},  {"1,3,0,1,0,1,0", "1,3,0,1,0,1,0"},
    };
    const std::string style = "Arial,2.5,0,0,0,0,0,0,0,0,";
    for (const auto& [items, expected] : cases) {
        EXPECT_EQ(ReadAndWritten(style + items), style + expected) << items;
    }
}

}  // namespace
