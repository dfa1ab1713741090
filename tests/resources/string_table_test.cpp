// SPDX-License-Identifier: MIT
#include <marlin/platform/text/c_string.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

CString Load(unsigned int id) {
    CString text;
    text.LoadString(id);
    return text;
}

// Loaded from a static constructor.
const CString loadedBeforeMain = Load(9078);

TEST(StringTable, EveryTextStandsUnderItsNumber) {
    const std::pair<unsigned int, const char*> texts[] = {
        {9064, "Annotation"},
        {9065, "Width"},
        {9066, "Type"},
        {9067, "Continous,Dashed,Dot,Dash Dot"},
        {9070, "Error opening \""},
        {9071, " The file has an invalid checksum"},
        {9072, "The contour definition is already in the list, it was not added."},
        {9073, "Error"},
        {9074, "Failed to generate contours."},
        {9075, "Color Table Files (*.col)"},
        {9076,
         "Failed to implement modifications.\nReason:\n\tThe depth was modfied to a value\n"
         "\tthat is already in the list!"},
        {9077, "Color Level"},
        {9078, "Save changes?"},
        {9079, "Contour Definition Files (*.cdf)"},
        {9080, "Error opening \""},
        {9081, "\" for reading!"},
        {9082, "Error! Duplicate section"},
        {9083, " found!"},
        {9086, "Invalid section definition on line "}};
    for (const auto& [id, text] : texts) {
        EXPECT_STREQ(Load(id), text) << id;
    }
}

TEST(StringTable, NumbersThatNobodyUsesHaveNoText) {
    for (const unsigned int id : {0U, 9063U, 9068U, 9069U, 9084U, 9085U, 9087U}) {
        CString text("before");
        EXPECT_FALSE(text.LoadString(id)) << id;
        EXPECT_TRUE(text.IsEmpty()) << id;
    }
}

TEST(StringTable, TextsAreThereForStaticConstructors) {
    EXPECT_STREQ(loadedBeforeMain, "Save changes?");
}

}  // namespace
