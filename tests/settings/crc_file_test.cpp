// SPDX-License-Identifier: MIT
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include <marlin/settings/crc_file.h>

#include <array>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>

namespace {

std::string Seal(const TemporaryFolder& folder, const std::string& payload) {
    const std::string path = folder.File("sealed");
    CRCFile file;
    EXPECT_TRUE(file.Open(path, "w+b").Empty());
    EXPECT_EQ(file.Write(payload.data(), 1, static_cast<unsigned int>(payload.size())),
              payload.size());
    file.Close();
    EXPECT_FALSE(file.IsOpen());
    return path;
}

TEST(CRCFile, AppendsTheChecksumLowByteFirst) {
    const TemporaryFolder folder;
    const std::string path = Seal(folder, "123456789");
    EXPECT_EQ(TemporaryFolder::Read(path), "123456789\x26\x39\xF4\xCB");
    EXPECT_EQ(CRCFile::GetCRC(path), 0xCBF43926U);
    EXPECT_EQ(TemporaryFolder::Read(Seal(folder, "")), std::string(4, '\0'));
}

TEST(CRCFile, ReadsBackFromTheStartWhatWasSealed) {
    const TemporaryFolder folder;
    const std::string path = Seal(folder, "123456789");
    CRCFile file;
    ASSERT_TRUE(file.Open(path, "rb").Empty());
    EXPECT_EQ(file.Tell(), 0U);
    std::array<char, 10> bytes{};
    EXPECT_EQ(file.Read(bytes.data(), 2, 5), 5U);  // the trailer is there to be read too
    EXPECT_TRUE(file.Seek(-4, SEEK_END));
    EXPECT_EQ(file.Tell(), 9U);
    file.Rewind();
    EXPECT_EQ(file.Read(bytes.data(), 1, 9), 9U);
    EXPECT_EQ(std::string(bytes.data(), 9), "123456789");
    file.Close();
    EXPECT_EQ(TemporaryFolder::Read(path).size(), 13U);
}

TEST(CRCFile, RefusesEverySingleChangedByteAndShortFiles) {
    const TemporaryFolder folder;
    const std::string whole = TemporaryFolder::Read(Seal(folder, "payload"));
    const auto refused = [&](const std::string& bytes) {
        const std::string path = folder.Write("changed", bytes);
        CRCFile file;
        const ErrorString error = file.Open(path, "rb");
        return error.Text() == "Error opening \"" + path + "\". The file has an invalid checksum" &&
               !file.IsOpen();
    };
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string changed = whole;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        EXPECT_TRUE(refused(changed)) << i;
        EXPECT_TRUE(refused(whole.substr(0, i))) << i;
    }
    EXPECT_TRUE(refused(whole + "x"));
    EXPECT_FALSE(refused(whole));
}

TEST(CRCFile, SaysWhichFileCannotBeOpened) {
    const TemporaryFolder folder;
    const std::string path = folder.File("none");
    CRCFile file;
    EXPECT_EQ(file.Open(path, "rb").Text(), "Error opening \"" + path + "\".");
    EXPECT_EQ(CRCFile::GetCRC(path), 0U);
    EXPECT_EQ(CRCFile::GetCRC(folder.Write("short", "abc")), 0U);
    EXPECT_EQ(file.Write("x", 1, 1), 0U);
    EXPECT_FALSE(file.Seek(0, SEEK_SET));
    EXPECT_FALSE(file.Flush());
}

TEST(CRCFile, OpeningASecondFileCompletesTheFirst) {
    const TemporaryFolder folder;
    CRCFile file;
    ASSERT_TRUE(file.Open(folder.File("first"), "w+b").Empty());
    file.Write("123456789", 1, 9);
    EXPECT_TRUE(file.Flush());
    ASSERT_TRUE(file.Open(folder.File("second"), "w+b").Empty());
    EXPECT_TRUE(CRCFile().Open(folder.File("first"), "rb").Empty());
}

TEST(CRCFile, AssignedFilesShareOneStreamThatIsClosedOnce) {
    const TemporaryFolder folder;
    {
        CRCFile first;
        CRCFile second;
        ASSERT_TRUE(first.Open(folder.File("shared"), "w+b").Empty());
        second = first;
        first.Write("1234", 4, 1);
        second.Write("56789", 5, 1);
        first.Close();
        EXPECT_FALSE(second.IsOpen());
        EXPECT_EQ(second.Write("x", 1, 1), 0U);
        second.Close();
    }
    EXPECT_EQ(CRCFile::GetCRC(folder.File("shared")), 0xCBF43926U);
    EXPECT_EQ(TemporaryFolder::Read(folder.File("shared")).size(), 13U);
}

TEST(CRCFile, IsClosedWhenItIsDestroyedAndWhenAnotherIsAssigned) {
    const TemporaryFolder folder;
    CRCFile assigned;
    {
        CRCFile destroyed;
        ASSERT_TRUE(destroyed.Open(folder.File("destroyed"), "w+b").Empty());
        ASSERT_TRUE(assigned.Open(folder.File("assigned"), "w+b").Empty());
        destroyed.Write("123456789", 1, 9);
        assigned.Write("123456789", 1, 9);
    }
    assigned = CRCFile();
    EXPECT_EQ(CRCFile::GetCRC(folder.File("destroyed")), 0xCBF43926U);
    EXPECT_EQ(CRCFile::GetCRC(folder.File("assigned")), 0xCBF43926U);
}

// The cause that the last error has: of closing, empty after a success.
std::string CauseOfClosing(CRCFile& file) {
    file.Close();
    return ErrorString::LastError().Cause();
}

TEST(CRCFile, ReportsAPayloadThatCannotBeReadBack) {
    const TemporaryFolder folder;
    CRCFile file;
    ASSERT_TRUE(file.Open(folder.File("written"), "wb").Empty());
    file.Write("123", 1, 3);
    EXPECT_EQ(CauseOfClosing(file), folder.File("written") + ": Bad file descriptor");
    EXPECT_EQ(ErrorString::LastError().Text(), "Operation failed.");
}

TEST(CRCFile, RemembersAFailedWriteUntilItIsClosedAndAddsNoChecksum) {
    const TemporaryFolder folder;
    const std::string path = folder.File("short");
    const std::string payload(100'000, 'p');
    for (const bool held : {false, true}) {
        CRCFile file;
        ASSERT_TRUE(file.Open(path, "w+b").Empty());
        {
            const FullDisk full(1000);
            const unsigned int size = held ? 2000 : 100'000;
            EXPECT_EQ(file.Write(payload.data(), 1, size) == size, held);
            EXPECT_TRUE(!held || !file.Flush());
            file.Rewind();
        }
        CRCFile copy = file;
        EXPECT_EQ(CauseOfClosing(file), path + ": File too large");
        EXPECT_EQ(CauseOfClosing(copy), path + ": File too large");
        EXPECT_EQ(TemporaryFolder::Read(path).find_first_not_of('p'), std::string::npos);
    }
    CRCFile good;
    ASSERT_TRUE(good.Open(path, "w+b").Empty());
    EXPECT_TRUE(ErrorString::LastError().Empty());
    static_cast<void>(ErrorString("older"));
    EXPECT_EQ(CauseOfClosing(good), "");
    EXPECT_TRUE(ErrorString::LastError().Empty());
}

TEST(CRCFile, ReportsATrailerThatTheDiskDoesNotTake) {
    const TemporaryFolder folder;
    const std::string path = folder.File("full");
    CRCFile file;
    ASSERT_TRUE(file.Open(path, "w+b").Empty());
    const FullDisk full(9);
    EXPECT_EQ(file.Write("123456789", 1, 9), 9U);
    EXPECT_TRUE(file.Flush());
    EXPECT_EQ(CauseOfClosing(file), path + ": File too large");
}

TEST(CRCFile, OpensNoFolder) {
    const TemporaryFolder folder;
    const ErrorString error = CRCFile().Open(folder.File(""), "rb");
    EXPECT_EQ(error.Text(), "Error opening \"" + folder.File("") + "\".");
    EXPECT_EQ(error.Cause(), folder.File("") + ": Is a directory");
}

TEST(CRCFile, CoversPayloadsLargerThanItsBlocks) {
    const TemporaryFolder folder;
    std::string payload(700'001, 'a');
    const std::string path = Seal(folder, payload);
    EXPECT_TRUE(CRCFile().Open(path, "rb").Empty());
    payload = TemporaryFolder::Read(path);
    payload[600'000] = 'b';
    EXPECT_FALSE(CRCFile().Open(folder.Write("changed", payload), "rb").Empty());
}

}  // namespace
