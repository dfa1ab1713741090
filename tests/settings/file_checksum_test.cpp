// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/file_checksum.h>

#include <chrono>

#include <gtest/gtest.h>

namespace {

constexpr unsigned int all = FileChecksum::AllWords;

unsigned int Fingerprint(const std::string& bytes, unsigned int wordLimit, int seconds = 1000) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("file", bytes);
    const auto epoch = std::chrono::file_clock::from_sys(std::chrono::sys_seconds{});
    std::filesystem::last_write_time(path, epoch + std::chrono::seconds(seconds));
    return FileChecksum(path, wordLimit).Value();
}

// A word is four bytes, the low one first, so that its text feeds the same.
unsigned int Expected(std::string_view words) {
    CRCChecksum checksum;
    checksum += 1000;
    checksum += words;
    return checksum.Value();
}

TEST(FileChecksum, CoversTheTimeAndTheWholeWordsUpToTheLimit) {
    const std::string large(200'000, 'a');
    EXPECT_EQ(Fingerprint("abcdefghij", 0), Expected(""));
    EXPECT_EQ(Fingerprint("abcdefghij", 1), Expected("abcd"));
    EXPECT_EQ(Fingerprint("abcdefghij", 3), Expected("abcdefgh"));
    EXPECT_EQ(Fingerprint("abcdefghij", all), Expected("abcdefgh"));
    EXPECT_EQ(Fingerprint(large + "bcd", all), Expected(large));
    EXPECT_EQ(Fingerprint(large, 40'001), Expected(large.substr(0, 160'004)));
    EXPECT_NE(Fingerprint("abcd", all, 1001), Expected("abcd"));
}

TEST(FileChecksum, IsZeroForWhatIsNoFile) {
    const TemporaryFolder folder;
    for (const std::string& path :
         {std::string(), folder.File("none"), folder.File(""), std::string("/dev/zero")}) {
        EXPECT_EQ(FileChecksum(path, all).Value(), 0U) << path;
    }
    EXPECT_EQ(FileChecksum("", 1), FileChecksum(folder.File("none"), all));
    EXPECT_NE(FileChecksum("", 1), FileChecksum(folder.Write("some", "abcd"), all));
}

}  // namespace
