// SPDX-License-Identifier: MIT
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <array>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using MARLINSUITE::ReplaceFile;
namespace fs = std::filesystem;

TEST(ReplaceFile, MakesAndReplacesAFileAndLeavesNothingElse) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a");
    EXPECT_TRUE(ReplaceFile(path, "first").Empty());
    EXPECT_TRUE(ReplaceFile(path, std::string_view("s\0d", 3)).Empty());
    EXPECT_EQ(TemporaryFolder::Read(path), std::string("s\0d", 3));
    std::string bytes;
    EXPECT_TRUE(MARLINSUITE::ReadFile(path, bytes).Empty());
    EXPECT_EQ(bytes.size(), 3U);
    EXPECT_TRUE(MARLINSUITE::ReadFile(path, bytes, 3).Empty());
    EXPECT_EQ(MARLINSUITE::ReadFile(path, bytes, 2).Text(), path + ": larger than 0 MiB");
    EXPECT_EQ(MARLINSUITE::ReadFile("/dev/zero", bytes, 1U << 21U).Text(),
              "/dev/zero: larger than 2 MiB");
    EXPECT_EQ(bytes.size(), 3U);
    EXPECT_TRUE(ReplaceFile(path, "").Empty());
    EXPECT_EQ(fs::file_size(path), 0U);
    EXPECT_EQ(folder.NumFiles(), 1);
}

TEST(ReplaceFile, KeepsTheModeAndTakesTheUmaskForANewFile) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    fs::permissions(path, fs::perms(0640));
    const mode_t before = ::umask(027);
    EXPECT_TRUE(ReplaceFile(path, "new").Empty());
    EXPECT_TRUE(ReplaceFile(folder.File("b"), "new").Empty());
    ::umask(before);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::status(folder.File("b")).permissions(), fs::perms(0640));
}

TEST(ReplaceFile, GoesThroughSymbolicLinksToTheFileTheyName) {
    const TemporaryFolder folder;
    fs::create_directory(folder.File("sub"));
    const std::string target = folder.Write("sub/target", "old");
    fs::create_symlink("sub/second", folder.File("first"));
    fs::create_symlink("target", folder.File("sub/second"));
    EXPECT_TRUE(ReplaceFile(folder.File("first"), "new").Empty());
    EXPECT_EQ(TemporaryFolder::Read(target), "new");
    EXPECT_TRUE(fs::is_symlink(folder.File("first")));
    EXPECT_TRUE(fs::is_symlink(folder.File("sub/second")));
    fs::create_symlink("loop", folder.File("loop"));
    EXPECT_EQ(ReplaceFile(folder.File("loop"), "x").Text(),
              folder.File("loop") + ": Too many levels of symbolic links");
    fs::create_symlink("made", folder.File("dangling"));
    EXPECT_TRUE(ReplaceFile(folder.File("dangling"), "x").Empty());
    EXPECT_EQ(TemporaryFolder::Read(folder.File("made")), "x");
}

TEST(ReplaceFile, AFailureNamesFileAndCauseAndLeavesTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", std::string(1000, 'o'));
    {
        const FullDisk full(5000);
        const ErrorString error = ReplaceFile(path, std::string(100'000, 'n'));
        EXPECT_EQ(error.Text(), path + ": File too large");
    }
    EXPECT_EQ(TemporaryFolder::Read(path), std::string(1000, 'o'));
    EXPECT_EQ(folder.NumFiles(), 1);
    EXPECT_EQ(ReplaceFile(folder.File(""), "x").Text(), folder.File("") + ": Is a directory");
    EXPECT_EQ(ReplaceFile(folder.File("no/a"), "x").Text(),
              folder.File("no/a") + ": No such file or directory");
    EXPECT_EQ(ReplaceFile("/dev/full", "x").Text(), "/dev/full: No space left on device");
    std::string bytes = "kept";
    EXPECT_EQ(MARLINSUITE::ReadFile(folder.File(""), bytes).Text(),
              folder.File("") + ": Is a directory");
    EXPECT_EQ(bytes, "kept");
}

TEST(ReplaceFile, MakesFilesUnderNamesWhereThereAreNoUnnamedOnes) {
    const TemporaryFolder folder;
    PLATFORM::detail::AllowUnnamedFiles(false);
    const std::string path = folder.Write("a", "old");
    fs::permissions(path, fs::perms(0604));
    EXPECT_TRUE(ReplaceFile(path, "new").Empty());
    EXPECT_TRUE(ReplaceFile(folder.File("b"), "new").Empty());
    {
        const FullDisk full(5000);
        EXPECT_FALSE(ReplaceFile(path, std::string(100'000, 'n')).Empty());
    }
    PLATFORM::detail::AllowUnnamedFiles(true);
    EXPECT_EQ(TemporaryFolder::Read(path) + TemporaryFolder::Read(folder.File("b")), "newnew");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0604));
    EXPECT_EQ(folder.NumFiles(), 2);
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
    EXPECT_EQ(ReplaceFile("/dev/fd/" + std::to_string(open), "3").Text(),
              "/dev/fd/" + std::to_string(open) + ": Bad file descriptor");
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const int reading = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_TRUE(ReplaceFile(pipe, "through").Empty());
    std::array<char, 10> bytes{};
    EXPECT_EQ(::read(reading, bytes.data(), bytes.size()), 7);
    ::close(reading);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(ReplaceFile, SplitsHardLinks) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    fs::create_hard_link(path, folder.File("b"));
    EXPECT_TRUE(ReplaceFile(path, "new").Empty());
    EXPECT_EQ(TemporaryFolder::Read(path), "new");
    EXPECT_EQ(TemporaryFolder::Read(folder.File("b")), "old");
}

}  // namespace
