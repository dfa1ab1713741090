// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/data_search.h>

#include <gtest/gtest.h>
#include <stdlib.h>

namespace {

// The environment of the look-ups: a home without $XDG_DATA_HOME, and two shared folders among
// what is to be ignored.
class DataSearchTest : public testing::Test {
protected:
    DataSearchTest() {
        ::unsetenv("MARLIN_DATA_DIR");
        ::unsetenv("XDG_DATA_HOME");
        ::setenv("HOME", m_Folder.File("home").c_str(), 1);
        ::setenv("XDG_DATA_DIRS",
                 ("relative:" + m_Folder.File("one") + "::" + m_Folder.File("two")).c_str(), 1);
    }

    static std::string FullPath(const std::string& name) {
        CString path(name.c_str());
        EXPECT_TRUE(DataSearch::GetDataSearch().GetFullPath(23, path));
        return path.GetString();
    }

    const TemporaryFolder m_Folder;
};

TEST_F(DataSearchTest, AFileThatIsNowhereIsGivenInTheFirstCandidate) {
    EXPECT_EQ(FullPath("None"), m_Folder.File("home/.local/share/marlin/keywords/None"));
    ::setenv("XDG_DATA_HOME", m_Folder.File("data").c_str(), 1);
    EXPECT_EQ(FullPath("None"), m_Folder.File("data/marlin/keywords/None"));
    ::setenv("MARLIN_DATA_DIR", "own", 1);
    EXPECT_EQ(FullPath("None"), (std::filesystem::current_path() / "own/keywords/None").string());
}

TEST_F(DataSearchTest, TheFirstThatExistsIsTakenAtEachLookUp) {
    CString folder;
    EXPECT_TRUE(DataSearch::GetDataSearch().GetFilePath(4, folder));
    EXPECT_TRUE(std::filesystem::equivalent(folder.GetString(),
                                            MARLIN_SOURCE_DIR "/share/marlin/contours"));
    ::setenv("MARLIN_DATA_DIR", m_Folder.File("own").c_str(), 1);
    m_Folder.Write("one/marlin/keywords/Other", "");  // passed over
    for (const char* place : {"two/marlin", "one/marlin", "home/.local/share/marlin", "own"}) {
        const std::string path = m_Folder.Write(std::string(place) + "/keywords/Keywords", "");
        EXPECT_EQ(FullPath("Keywords"), path);
        EXPECT_EQ(FullPath(path), path);
    }
}

TEST_F(DataSearchTest, UnknownKindsAndEmptyNamesGiveNoPath) {
    const DataSearch& search = DataSearch::GetDataSearch();
    for (const unsigned int kind : {0U, 5U, 22U, 24U}) {
        CString text("kept");
        EXPECT_FALSE(search.GetFilePath(kind, text));
        EXPECT_FALSE(search.GetFullPath(kind, text));
        EXPECT_STREQ(text, "kept");
    }
    CString empty;
    EXPECT_FALSE(search.GetFullPath(23, empty));
}

}  // namespace
