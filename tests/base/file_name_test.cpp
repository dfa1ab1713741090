// SPDX-License-Identifier: MIT
#include <marlin/base/files/file_name.h>

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* Path;
    const char* WithExtension;
    const char* Title;
};

constexpr Row rows[] = {{"x.txt", "x.cdf", "x"},
                        {"/a.b/chart", "/a.b/chart.cdf", "chart"},
                        {"a/b.tar.gz", "a/b.tar.cdf", "b.tar"},
                        {"a/.profile", "a/.profile.cdf", ".profile"},
                        {"a/..profile.txt", "a/..profile.cdf", "..profile"},
                        {"name.", "name.cdf", "name"},
                        {"", "", ""},
                        {"a.b/", "a.b/", ""},
                        {"a.b/..", "a.b/..", ".."},
                        {"\xC4.x", "\xC4.cdf", "\xC4"}};

TEST(FileName, TheExtensionBehindTheLastDotOfTheNameIsReplaced) {
    for (const Row& row : rows) {
        FileName name{CString(row.Path)};
        name.SetExtension("cdf");
        EXPECT_STREQ(name.c_str(), row.WithExtension);
        name.SetExtension(".cdf");
        EXPECT_STREQ(name.c_str(), row.WithExtension);
    }
}

TEST(FileName, AnEmptyExtensionTakesTheDotAway) {
    FileName name{CString("a.b/x.txt")};
    name.SetExtension("");
    EXPECT_STREQ(name.c_str(), "a.b/x");
}

TEST(FileName, TheTitleIsTheNameWithoutFolderAndExtension) {
    for (const Row& row : rows) {
        EXPECT_STREQ(GetTitleFromPath(row.Path), row.Title) << row.Path;
    }
}

}  // namespace
