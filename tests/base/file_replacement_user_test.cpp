// SPDX-License-Identifier: MIT
// What saving keeps of a file, tried as other users in children of the test.
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <array>
#include <csignal>
#include <string>

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using MARLINSUITE::ReplaceFile;
namespace fs = std::filesystem;

constexpr uid_t owner = 65501;
constexpr uid_t member = 65502;
constexpr gid_t sharedGroup = 65510;
constexpr gid_t ownGroup = 65511;

// The wait status of a child that runs the action in the folder: paths from there need no right to
// enter the folders above.
template <class Action>
int StatusOfChild(const TemporaryFolder& folder, const Action& action) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(::chdir(folder.File("").c_str()) == 0 ? action() : 99);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status;
}

// An access list that lets one more user read: owner rw, that user r, group rw, others nothing.
const std::string accessList(
    "\2\0\0\0\1\0\6\0\377\377\377\377\2\0\4\0\375\377\0\0\4\0\6\0\377\377\377\377"
    "\20\0\6\0\377\377\377\377\40\0\0\0\377\377\377\377",
    44);

std::string Attribute(const std::string& path, const char* name) {
    std::array<char, 200> bytes{};
    const ssize_t size = ::getxattr(path.c_str(), name, bytes.data(), bytes.size());
    return size < 0 ? "none" : std::string(bytes.data(), static_cast<std::size_t>(size));
}

bool SetAttribute(const std::string& path, const char* name, const std::string& value) {
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

// A folder that all may write, and in it the file "a" with the shared group.
struct SharedFile {
    TemporaryFolder Folder;
    std::string Path = Folder.Write("a", "a longer old text");

    explicit SharedFile(unsigned int mode) {
        fs::permissions(Folder.File(""), fs::perms(0777));
        EXPECT_EQ(::chown(Path.c_str(), owner, sharedGroup), 0);
        EXPECT_EQ(::chmod(Path.c_str(), mode), 0);
    }
    [[nodiscard]] struct stat Status() const {
        struct stat status {};
        EXPECT_EQ(::stat(Path.c_str(), &status), 0);
        return status;
    }
    [[nodiscard]] std::string Bytes() const { return TemporaryFolder::Read(Path); }
    // Saves "new" as that user, whose groups are his own and the shared one.
    [[nodiscard]] bool IsSavedBy(uid_t user) const {
        const int status = StatusOfChild(Folder, [user] {
            const bool changed = ::setgroups(1, &sharedGroup) == 0 && ::setegid(ownGroup) == 0 &&
                                 ::seteuid(user) == 0;
            return changed && ReplaceFile("a", "new").Empty() ? 0 : 1;
        });
        return status == 0 && Bytes() == "new";
    }
};

class ReplaceFileAsUser : public testing::Test {
protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "only root can take on other users";
        }
    }
};

// Set-user and set-group bits go where another than the owner or root saves.
TEST_F(ReplaceFileAsUser, KeepsOwnerGroupAndMode) {
    struct Case {
        uid_t User;
        unsigned int Mode;
        unsigned int Kept;
        bool IsNewFile;
    };
    for (const Case& c : {Case{0, 0640, 0640, true}, Case{0, 06775, 06775, true},
                          Case{owner, 0660, 0660, true}, Case{owner, 06770, 06770, true},
                          Case{member, 0664, 0664, false}, Case{member, 06775, 0775, false}}) {
        const SharedFile file(c.Mode);
        const ino_t before = file.Status().st_ino;
        ASSERT_TRUE(file.IsSavedBy(c.User)) << c.User;
        const struct stat after = file.Status();
        EXPECT_EQ(after.st_uid, owner) << c.User;
        EXPECT_EQ(after.st_gid, sharedGroup) << c.User;
        EXPECT_EQ(after.st_mode & 07777U, c.Kept) << c.User;
        EXPECT_EQ(after.st_ino != before, c.IsNewFile) << c.User;
        EXPECT_EQ(file.Folder.NumFiles(), 1) << c.User;
    }
}

TEST_F(ReplaceFileAsUser, KeepsExtendedAttributesAndAccessListsAndTakesNoneOfTheFolder) {
    for (const uid_t user : {uid_t{0}, owner, member}) {
        const SharedFile file(0660);
        if (!SetAttribute(file.Path, "user.note", "kept") ||
            !SetAttribute(file.Path, "system.posix_acl_access", accessList)) {
            GTEST_SKIP() << "the file system has no extended attributes";
        }
        ASSERT_TRUE(file.IsSavedBy(user)) << user;
        EXPECT_EQ(Attribute(file.Path, "user.note"), "kept") << user;
        EXPECT_EQ(Attribute(file.Path, "system.posix_acl_access"), accessList) << user;
    }
    const SharedFile plain(0664);
    ASSERT_TRUE(SetAttribute(plain.Folder.File(""), "system.posix_acl_default", accessList));
    ASSERT_TRUE(plain.IsSavedBy(0));
    EXPECT_EQ(Attribute(plain.Path, "system.posix_acl_access"), "none");
    EXPECT_EQ(plain.Status().st_mode & 0777U, 0664U);
}

TEST_F(ReplaceFileAsUser, RewritesInPlaceWhereTheFolderTakesNoNewFile) {
    const SharedFile file(04775);
    fs::permissions(file.Folder.File(""), fs::perms(0555));
    const auto isRefused = [&](const char* name, std::size_t size, const char* message) {
        const int status = StatusOfChild(file.Folder, [&] {
            const FullDisk full(5000);
            const bool ready = ::seteuid(owner) == 0;
            const ErrorString error = ReplaceFile(name, std::string(size, 'n'));
            return ready && error.Text() == message ? 0 : 1;
        });
        return status == 0;
    };
    EXPECT_TRUE(isRefused("a", 100'000, "a: File too large"));
    EXPECT_EQ(file.Bytes(), "a longer old text");
    EXPECT_TRUE(isRefused("b", 1, "b: Permission denied"));
    EXPECT_TRUE(file.IsSavedBy(owner));
    EXPECT_EQ(file.Status().st_mode & 07777U, 04775U);
    fs::permissions(file.Path, fs::perms(0444));
    EXPECT_TRUE(isRefused("a", 1, "a: Permission denied"));
    EXPECT_EQ(file.Bytes(), "new");
}

// A ramfs has neither extended attributes nor a way to reserve.
TEST_F(ReplaceFileAsUser, RewritesInPlaceWhereNothingCanBeReserved) {
    const TemporaryFolder folder;
    const int status = StatusOfChild(folder, [] {
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", ".", "ramfs", 0, nullptr) != 0 || ::chdir(fs::current_path().c_str())) {
            return 2;
        }
        std::ofstream("a") << "old";
        const std::string longer(100'000, 'n');
        const auto isSaved = [](const std::string& text) {
            return ReplaceFile("a", text).Empty() && TemporaryFolder::Read("a") == text;
        };
        const bool done = ::chmod("a", 0666) == 0 && ::chmod(".", 0555) == 0 &&
                          ::seteuid(member) == 0 && isSaved(longer) && isSaved("short");
        const FullDisk full(50'000);
        return done && !isSaved(longer) && TemporaryFolder::Read("a") == "short" ? 0 : 1;
    });
    if (WEXITSTATUS(status) == 2) {
        GTEST_SKIP() << "cannot mount a file system";
    }
    EXPECT_EQ(status, 0);
}

bool HasUnnamedFiles(const TemporaryFolder& folder) {
    const int descriptor = ::open(folder.File("").c_str(), O_WRONLY | O_TMPFILE, 0600);
    ::close(descriptor);
    return descriptor >= 0;
}

// The signal of a limit on the size of files ends the child within the write.
TEST(ReplaceFile, AnEndWithinTheWriteLeavesNothingOrAFileThatOthersCannotRead) {
    const TemporaryFolder folder;
    if (!HasUnnamedFiles(folder)) {
        GTEST_SKIP() << "the file system has no unnamed files";
    }
    const std::string path = folder.Write("a", "old");
    fs::permissions(path, fs::perms(0644));
    const auto endedWithin = [&](bool unnamed) {
        const int status = StatusOfChild(folder, [unnamed] {
            const rlimit limits{1000, 1000};
            const rlimit noCore{0, 0};
            PLATFORM::detail::AllowUnnamedFiles(unnamed);
            ::setrlimit(RLIMIT_CORE, &noCore);
            ::setrlimit(RLIMIT_FSIZE, &limits);
            return ReplaceFile("a", std::string(100'000, 'n')).Empty() ? 0 : 1;
        });
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ;
    };
    EXPECT_TRUE(endedWithin(true));
    EXPECT_EQ(folder.NumFiles(), 1);
    EXPECT_TRUE(endedWithin(false));
    EXPECT_EQ(folder.NumFiles(), 2);
    for (const auto& entry : fs::directory_iterator(folder.File(""))) {
        EXPECT_TRUE(entry.path() == path || entry.status().permissions() == fs::perms(0600));
    }
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
}

TEST(ReplaceFile, ManyKillsLeaveOneFileAtMost) {
    const TemporaryFolder folder;
    if (!HasUnnamedFiles(folder)) {
        GTEST_SKIP() << "the file system has no unnamed files";
    }
    const std::string path = folder.Write("a", "old");
    for (int saves = 1; saves <= 40; ++saves) {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            while (ReplaceFile(path, std::string(10'000, 'n')).Empty() &&
                   ::write(pipe[1], "s", 1) == 1) {
            }
            ::_exit(1);
        }
        char saved = 0;
        EXPECT_EQ(::read(pipe[0], &saved, 1), 1);  // the next save has begun then, or is about to
        ::kill(child, saves % 2 == 0 ? SIGKILL : SIGTERM);
        ::waitpid(child, nullptr, 0);
        ::close(pipe[0]);
        ::close(pipe[1]);
        EXPECT_EQ(TemporaryFolder::Read(path).size(), 10'000U);
    }
    EXPECT_LE(folder.NumFiles(), 2);
}

}  // namespace
