// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/files/file_replacement.h>

#include <csignal>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using MARLINSUITE::ReplaceFile;
namespace fs = std::filesystem;

// While it lives no file may grow beyond the limit, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        m_Handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_Before);
        const rlimit limit{bytes, m_Before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_Before);
        std::signal(SIGXFSZ, m_Handler);
    }

private:
    rlimit m_Before{};
    void (*m_Handler)(int) = nullptr;
};

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

TEST(ReplaceFile, RewritesInPlaceWhereTheFolderTakesNoNewFile) {
    if (::geteuid() == 0 && ::seteuid(65534) != 0) {
        GTEST_SKIP() << "cannot take on a user whom permissions bind";
    }
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", std::string(1000, 'o'));
    fs::permissions(folder.File(""), fs::perms(0555));
    const bool shorter = ReplaceFile(path, "new").Empty();
    const std::string afterShorter = TemporaryFolder::Read(path);
    bool refused = false;
    {
        const FullDisk full(5000);
        refused = !ReplaceFile(path, std::string(100'000, 'n')).Empty();
    }
    const std::string afterRefusal = TemporaryFolder::Read(path);
    const std::string newFile = ReplaceFile(folder.File("b"), "x").Text();
    fs::permissions(folder.File(""), fs::perms(0755));
    fs::permissions(path, fs::perms(0444));
    const std::string readOnly = ReplaceFile(path, "x").Text();
    static_cast<void>(::seteuid(::getuid()));
    EXPECT_TRUE(shorter);
    EXPECT_EQ(afterShorter, "new");
    EXPECT_TRUE(refused);
    EXPECT_EQ(afterRefusal, "new");
    EXPECT_EQ(newFile, folder.File("b") + ": Permission denied");
    EXPECT_EQ(readOnly, path + ": Permission denied");
}

}  // namespace
