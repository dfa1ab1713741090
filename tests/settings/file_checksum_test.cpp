// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/file_checksum.h>

#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

std::string Dated(const TemporaryFolder& folder, const std::string& bytes, int seconds) {
    const std::string path = folder.Write("file", bytes);
    const std::filesystem::file_time_type epoch =
        std::chrono::file_clock::from_sys(std::chrono::sys_seconds{});
    std::filesystem::last_write_time(path, epoch + std::chrono::seconds(seconds));
    return path;
}

TEST(FileChecksum, CoversTheTimeAndTheWholeWordsUpToTheLimit) {
    const TemporaryFolder folder;
    const std::string path = Dated(folder, "abcdefghij", 1000);
    CRCChecksum time;
    time += 1000U;
    EXPECT_EQ(FileChecksum(path, 0).Value(), time.Value());
    CRCChecksum one = time;
    one += 0x64636261U;
    EXPECT_EQ(FileChecksum(path, 1).Value(), one.Value());
    CRCChecksum two = one;
    two += 0x68676665U;
    EXPECT_EQ(FileChecksum(path, FileChecksum::AllWords).Value(), two.Value());
    EXPECT_EQ(FileChecksum(Dated(folder, "abcdefghXY", 1000), 100).Value(), two.Value());
}

TEST(FileChecksum, TellsAChangedFileAndAnotherTime) {
    const TemporaryFolder folder;
    const FileChecksum before(Dated(folder, "abcdefgh", 1000), FileChecksum::AllWords);
    EXPECT_EQ(before, FileChecksum(Dated(folder, "abcdefgh", 1000), FileChecksum::AllWords));
    EXPECT_NE(before, FileChecksum(Dated(folder, "abcdefgX", 1000), FileChecksum::AllWords));
    EXPECT_NE(before, FileChecksum(Dated(folder, "abcdefgh", 1001), FileChecksum::AllWords));
    EXPECT_EQ(FileChecksum("", 1).Value(), 0U);
    EXPECT_EQ(FileChecksum(folder.File("none"), 1), FileChecksum("", 1));
    EXPECT_EQ(FileChecksum(folder.File(""), 1).Value(), 0U);
    EXPECT_EQ(FileChecksum("/dev/zero", FileChecksum::AllWords).Value(), 0U);
}

TEST(FileChecksum, CoversEveryBlockOfALargeFile) {
    const TemporaryFolder folder;
    std::string bytes(200'000, 'a');
    const FileChecksum before(Dated(folder, bytes, 7), FileChecksum::AllWords);
    bytes[199'999] = 'b';
    const FileChecksum after(Dated(folder, bytes, 7), FileChecksum::AllWords);
    EXPECT_NE(before, after);
}

}  // namespace
