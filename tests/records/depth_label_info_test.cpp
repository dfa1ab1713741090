// SPDX-License-Identifier: MIT
#include <marlin/records/depth_label_info.h>

#include <string>

#include <gtest/gtest.h>

namespace {

DepthLabelInfo Label(int precision, int presentation, int placement) {
    DepthLabelInfo label;
    label.SetPrecision(precision);
    label.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(presentation));
    label.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(placement));
    return label;
}

DepthLabelInfo Flags(DepthLabelInfo label, bool color, bool rotation, bool drying, bool zeros) {
    label.UseTextColor(color);
    label.AutoTextRotation(rotation);
    label.SetUnderlineDryingHeights(drying);
    label.SetNoDecimalZeros(zeros);
    return label;
}

DepthLabelInfo Sized(DepthLabelInfo label, float size, unsigned long color) {
    label.SetSize(size);
    label.SetColor(color);
    return label;
}

TEST(DepthLabelInfo, WritesTheTextStyleAndThenItsOwnFields) {
    EXPECT_EQ(DepthLabelInfo().ToString(), "Arial,2.5,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0");
    // (255, 0, 0) is index 10; its word is 255.
    EXPECT_EQ(Flags(Sized(Label(-1, 4, 2), 3.0F, 255), false, true, false, true).ToString(),
              "Arial,3,0,0,10,0,0,0,0,255,-1,4,2,0,1,0,1");
}

TEST(DepthLabelInfo, ReadsBackWhatItWrote) {
    for (int bits = 0; bits < 16; ++bits) {
        for (int choice = 0; choice < 15; ++choice) {
            DepthLabelInfo label = Flags(Label(bits - 3, choice % 5, choice % 3), bits & 1,
                                         bits & 2, bits & 4, bits & 8);
            label.SetFont("Some Face");
            label.SetColor(0x0201FFUL);
            DepthLabelInfo read = Flags(Label(9, 1, 1), !(bits & 1), !(bits & 2), true, true);
            read.FromString(label.ToString());
            EXPECT_EQ(read, label) << label.ToString();
        }
    }
}

TEST(DepthLabelInfo, ReadsLayoutsOfEveryLength) {
    const DepthLabelInfo red = Sized({}, 3.0F, 255);
    const struct {
        const char* text;
        DepthLabelInfo expected;
    } cases[] = {
        {"", {}},
        {"Arial,3", Sized({}, 3.0F, 0)},
        {"Arial,3,0,0,10,0,0,0,0,255", red},
        {"Arial,3,0,0,10,0,0,0,0,66051,3", Sized(Label(3, 0, 0), 3.0F, 66051)},
        {"Arial,2.5,0,0,0,0,0,0,0,0,4,3,1,0,0,1,1",
         Flags(Label(4, 3, 1), false, false, true, true)},
        // The older layout: no color word, no item for the two newest flags.
        {"Arial,3,0,0,1,0,0,0,0,3,1,2,0,1",
         Flags(Sized(Label(3, 1, 2), 3.0F, 255), false, true, false, false)},
        {"Arial,2.5,0,0,0,0,0,0,0,0,2,0,0,1,1,0,0,more,items", {}},
    };
    for (const auto& [text, expected] : cases) {
        DepthLabelInfo label = Flags(Sized(Label(9, 1, 1), 8.0F, 8), false, false, true, true);
        label.FromString(text);
        EXPECT_EQ(label.ToString(), expected.ToString()) << text;
        EXPECT_EQ(label, expected) << text;
    }
}

TEST(DepthLabelInfo, PassesOverChoicesOutOfRange) {
    const struct {
        const char* items;
        DepthLabelInfo expected;
    } cases[] = {
        {"1,5,2,1,1,0,0", Label(1, 0, 2)},
        {"1,-1,1,1,1,0,0", Label(1, 0, 1)},
        {"1,4,3,1,1,0,0", Label(1, 4, 0)},
        {"1,4,-1,1,1,0,0", Label(1, 4, 0)},
        {"x,4,,1,1,,", Label(0, 4, 0)},
        {"-7,0,0,2,-1,0,no", Label(-7, 0, 0)},
        {"2,0,0,,x,3,9", Flags({}, false, false, true, true)},
    };
    for (const auto& [items, expected] : cases) {
        DepthLabelInfo label;
        label.FromString(std::string("Arial,2.5,0,0,0,0,0,0,0,0,") + items);
        EXPECT_EQ(label, expected) << items;
    }
}

TEST(DepthLabelInfo, TakesATextStyle) {
    TextInfo text;
    text.SetJustification(TextInfo::TOP_CENTER);
    DepthLabelInfo label = text;
    EXPECT_EQ(label.Justification(), TextInfo::TOP_CENTER);
    EXPECT_EQ(label.ToString(), "Arial,2.5,0,5,0,0,0,0,0,0,2,0,0,1,1,0,0");
    EXPECT_FALSE(label == DepthLabelInfo());
}

TEST(DepthLabelInfo, IsEqualWhenTextStyleAndAllFieldsAre) {
    DepthLabelInfo arial;
    arial.SetFont("ARIAL");
    EXPECT_EQ(arial, DepthLabelInfo());
    for (const DepthLabelInfo& other :
         {Label(3, 0, 0), Label(2, 1, 0), Label(2, 0, 1), Sized({}, 2.0F, 0),
          Flags({}, false, true, false, false), Flags({}, true, false, false, false),
          Flags({}, true, true, true, false), Flags({}, true, true, false, true)}) {
        EXPECT_FALSE(other == DepthLabelInfo()) << DepthLabelInfo(other).ToString();
    }
}

}  // namespace
