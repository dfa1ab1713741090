// SPDX-License-Identifier: MIT
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <array>
#include <string>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using MARLINSUITE::ReplaceFile;
namespace fs = std::filesystem;

TEST(ReplaceFile, MakesAndReplacesAFileThatIsReadWholeUpToALimit) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a");
    const std::string text("s\0d", 3);
    std::string bytes;
    EXPECT_TRUE(ReplaceFile(path, "first").Empty());
    EXPECT_TRUE(ReplaceFile(path, text).Empty());
    EXPECT_TRUE(MARLINSUITE::ReadFile(path, bytes, 3).Empty());
    EXPECT_EQ(bytes, text);
    EXPECT_EQ(MARLINSUITE::ReadFile(path, bytes, 2).Text(), path + ": larger than 0 MiB");
    EXPECT_EQ(MARLINSUITE::ReadFile("/dev/zero", bytes, 1U << 21U).Text(),
              "/dev/zero: larger than 2 MiB");
    EXPECT_EQ(MARLINSUITE::ReadFile(folder.File(""), bytes).Text(),
              folder.File("") + ": Is a directory");
    EXPECT_EQ(bytes, text);
    EXPECT_TRUE(ReplaceFile(path, "").Empty());
    EXPECT_EQ(fs::file_size(path), 0U);
    EXPECT_EQ(folder.NumFiles(), 1);
}

// Also under names, where there are no unnamed files.
TEST(ReplaceFile, KeepsTheModeAndTakesTheUmaskForANewFileAndAFailureKeepsTheOldFile) {
    for (const bool unnamed : {true, false}) {
        const TemporaryFolder folder;
        const std::string path = folder.Write("a", std::string(1000, 'o'));
        fs::permissions(path, fs::perms(0604));
        PLATFORM::detail::AllowUnnamedFiles(unnamed);
        {
            const FullDisk full(5000);
            EXPECT_EQ(ReplaceFile(path, std::string(100'000, 'n')).Text(),
                      path + ": File too large");
        }
        EXPECT_EQ(TemporaryFolder::Read(path), std::string(1000, 'o'));
        const mode_t before = ::umask(027);
        EXPECT_TRUE(ReplaceFile(path, "new").Empty());
        EXPECT_TRUE(ReplaceFile(folder.File("b"), "new").Empty());
        ::umask(before);
        PLATFORM::detail::AllowUnnamedFiles(true);
        EXPECT_EQ(TemporaryFolder::Read(path) + TemporaryFolder::Read(folder.File("b")), "newnew");
        EXPECT_EQ(fs::status(path).permissions(), fs::perms(0604));
        EXPECT_EQ(fs::status(folder.File("b")).permissions(), fs::perms(0640));
        EXPECT_EQ(folder.NumFiles(), 2);
    }
}

TEST(ReplaceFile, AFailureNamesFileAndCause) {
    const TemporaryFolder folder;
    fs::create_symlink("loop", folder.File("loop"));
    for (const auto& [path, cause] :
         {std::pair(folder.File(""), "Is a directory"),
          std::pair(folder.File("no/a"), "No such file or directory"),
          std::pair(folder.File("loop"), "Too many levels of symbolic links"),
          std::pair(std::string("/dev/full"), "No space left on device"),
          std::pair(std::string("/dev/fd/1023"), "Bad file descriptor")}) {
        EXPECT_EQ(ReplaceFile(path, "x").Text(), path + ": " + cause);
    }
}

TEST(ReplaceFile, GoesThroughSymbolicLinksAndSplitsHardLinks) {
    const TemporaryFolder folder;
    const std::string target = folder.Write("sub/target", "old");
    fs::create_hard_link(target, folder.File("hard"));
    fs::create_symlink("sub/second", folder.File("first"));
    fs::create_symlink("target", folder.File("sub/second"));
    EXPECT_TRUE(ReplaceFile(folder.File("first"), "new").Empty());
    EXPECT_EQ(TemporaryFolder::Read(target), "new");
    EXPECT_EQ(TemporaryFolder::Read(folder.File("hard")), "old");
    EXPECT_TRUE(fs::is_symlink(folder.File("first")));
    EXPECT_TRUE(fs::is_symlink(folder.File("sub/second")));
    fs::create_symlink("made", folder.File("dangling"));
    EXPECT_TRUE(ReplaceFile(folder.File("dangling"), "x").Empty());
    EXPECT_EQ(TemporaryFolder::Read(folder.File("made")), "x");
}

// As the shell sends output to a file of others' lines.
TEST(ReplaceFile, WritesToWhatIsOpenAndToPipesAndReplacesNeither) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "before\n");
    fs::create_hard_link(path, folder.File("b"));
    const int open = ::open(path.c_str(), O_WRONLY | O_APPEND);
    fs::create_symlink("/proc/self/fd/" + std::to_string(open), folder.File("link"));
    EXPECT_TRUE(ReplaceFile("/dev/fd/" + std::to_string(open), "1").Empty());
    EXPECT_TRUE(ReplaceFile(folder.File("link"), "2").Empty());
    ::close(open);
    EXPECT_EQ(TemporaryFolder::Read(folder.File("b")), "before\n12");
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const int reading = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_TRUE(ReplaceFile(pipe, "through").Empty());
    std::array<char, 10> bytes{};
    EXPECT_EQ(::read(reading, bytes.data(), bytes.size()), 7);
    ::close(reading);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

}  // namespace
