// SPDX-License-Identifier: MIT
#include "support/full_disk.h"
#include "support/temporary_folder.h"
#include <marlin/settings/crc_file.h>

#include <array>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class CRCFileTest : public testing::Test {
protected:
    const TemporaryFolder m_Folder;
    const std::string m_Path = m_Folder.File("sealed");
    CRCFile m_File;

    // Opens the file for writing.
    void SetUp() override { ASSERT_TRUE(m_File.Open(m_Path, "w+b").Empty()); }

    static unsigned int Write(CRCFile& file, const std::string& bytes) {
        return file.Write(bytes.data(), 1, static_cast<unsigned int>(bytes.size()));
    }
    // The bytes of the closed file.
    std::string Sealed(const std::string& payload) {
        EXPECT_EQ(Write(m_File, payload), payload.size());
        m_File.Close();
        return TemporaryFolder::Read(m_Path);
    }
    static bool Opens(const std::string& path) { return CRCFile().Open(path, "rb").Empty(); }

    // The cause that the last error has: of closing, empty after a success.
    static std::string CauseOfClosing(CRCFile& file) {
        file.Close();
        const ErrorString error = ErrorString::LastError();
        EXPECT_EQ(error.Text(), error.Cause().empty() ? "" : "Operation failed.");
        return error.Cause();
    }
};

const char* const sealedDigits = "123456789\x26\x39\xF4\xCB";

TEST_F(CRCFileTest, AppendsTheChecksumLowByteFirstAndReadsBackWhatWasSealed) {
    EXPECT_EQ(Sealed("123456789"), sealedDigits);
    EXPECT_FALSE(m_File.IsOpen());
    EXPECT_EQ(CRCFile::GetCRC(m_Path), 0xCBF43926U);
    ASSERT_TRUE(m_File.Open(m_Path, "rb").Empty());
    EXPECT_EQ(m_File.Tell(), 0U);
    std::array<char, 14> bytes{};
    EXPECT_EQ(m_File.Read(bytes.data(), 1, 14), 13U);  // the trailer is there to be read too
    EXPECT_STREQ(bytes.data(), sealedDigits);
    EXPECT_TRUE(m_File.Seek(-4, SEEK_END));
    EXPECT_EQ(m_File.Tell(), 9U);
    m_File.Rewind();
    EXPECT_EQ(m_File.Read(bytes.data(), 4, 4), 3U);
    EXPECT_EQ(CauseOfClosing(m_File), "");
    EXPECT_EQ(TemporaryFolder::Read(m_Path), sealedDigits);
}

TEST_F(CRCFileTest, RefusesEverySingleChangedByteAndShortFiles) {
    const std::string whole = Sealed("payload");
    const auto refused = [&](const std::string& bytes) {
        const std::string path = m_Folder.Write("changed", bytes);
        const ErrorString error = m_File.Open(path, "rb");
        return error.Text() == "Error opening \"" + path + "\". The file has an invalid checksum" &&
               !m_File.IsOpen();
    };
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string changed = whole;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        EXPECT_TRUE(refused(changed)) << i;
        EXPECT_TRUE(refused(whole.substr(0, i))) << i;
    }
    EXPECT_TRUE(refused(whole + "x"));
    EXPECT_FALSE(refused(whole));
    EXPECT_FALSE(refused(std::string(4, '\0'))) << "no payload";
    EXPECT_EQ(CRCFile::GetCRC(m_Folder.Write("short", "abc")), 0U);
}

TEST_F(CRCFileTest, CoversPayloadsLargerThanItsBlocks) {
    std::string bytes = Sealed(std::string(700'001, 'a'));
    EXPECT_TRUE(Opens(m_Path));
    bytes[600'000] = 'b';
    EXPECT_FALSE(Opens(m_Folder.Write("changed", bytes)));
}

TEST_F(CRCFileTest, SaysWhichFileCannotBeOpenedAndIsClosedThen) {
    for (const auto& [path, reason] :
         {std::pair(m_Folder.File("none"), "No such file or directory"),
          std::pair(m_Folder.File(""), "Is a directory")}) {
        const ErrorString error = m_File.Open(path, "rb");
        EXPECT_EQ(error.Text(), "Error opening \"" + path + "\".");
        EXPECT_EQ(error.Cause(), path + ": " + reason);
        EXPECT_EQ(CRCFile::GetCRC(path), 0U);
        char byte = 0;
        EXPECT_EQ(m_File.Write("x", 1, 1) + m_File.Read(&byte, 1, 1), 0U);
        EXPECT_EQ(m_File.Tell(), 0xFFFFFFFFU);
        EXPECT_FALSE(m_File.Seek(0, SEEK_SET));
        EXPECT_FALSE(m_File.Flush());
    }
}

TEST_F(CRCFileTest, IsCompletedByOpeningDestroyingAndAssigning) {
    CRCFile assigned;
    {
        CRCFile destroyed;
        ASSERT_TRUE(destroyed.Open(m_Folder.File("destroyed"), "w+b").Empty());
        ASSERT_TRUE(assigned.Open(m_Folder.File("assigned"), "w+b").Empty());
        for (CRCFile* const file : {&m_File, &destroyed, &assigned}) {
            EXPECT_EQ(Write(*file, "123456789"), 9U);
        }
    }
    assigned = CRCFile();
    ASSERT_TRUE(m_File.Open(m_Folder.File("second"), "w+b").Empty());
    for (const char* const name : {"sealed", "destroyed", "assigned"}) {
        EXPECT_EQ(TemporaryFolder::Read(m_Folder.File(name)), sealedDigits) << name;
    }
}

TEST_F(CRCFileTest, AssignedFilesShareOneStreamThatIsClosedOnce) {
    {
        CRCFile second;
        second = m_File;
        m_File.Write("1234", 4, 1);
        CRCFile third = second;
        EXPECT_EQ(Write(second, "56789"), 5U);
        third = CRCFile();
        EXPECT_TRUE(m_File.IsOpen());
        m_File.Close();
        EXPECT_FALSE(second.IsOpen());
        EXPECT_EQ(second.Write("x", 1, 1), 0U);
    }
    EXPECT_EQ(TemporaryFolder::Read(m_Path), sealedDigits);
}

TEST_F(CRCFileTest, RemembersAFailedWriteUntilItIsClosedAndAddsNoChecksum) {
    const std::string payload(100'000, 'p');
    for (const unsigned int size : {100'000U, 2000U}) {  // the second is held back at first
        ASSERT_TRUE(m_File.Open(m_Path, "w+b").Empty());
        {
            const FullDisk full(1000);
            EXPECT_EQ(m_File.Write(payload.data(), 1, size) == size, size == 2000);
            EXPECT_TRUE(size != 2000 || !m_File.Flush());
            m_File.Rewind();
        }
        CRCFile copy = m_File;
        EXPECT_EQ(CauseOfClosing(m_File), m_Path + ": File too large");
        EXPECT_EQ(CauseOfClosing(copy), m_Path + ": File too large");
        EXPECT_EQ(TemporaryFolder::Read(m_Path).find_first_not_of('p'), std::string::npos);
    }
    ASSERT_TRUE(m_File.Open(m_Path, "w+b").Empty());
    EXPECT_TRUE(ErrorString::LastError().Empty());
    static_cast<void>(ErrorString("older"));
    EXPECT_EQ(CauseOfClosing(m_File), "");
}

TEST_F(CRCFileTest, ReportsATrailerThatTheDiskDoesNotTake) {
    const FullDisk full(9);
    EXPECT_EQ(Write(m_File, "123456789"), 9U);
    EXPECT_TRUE(m_File.Flush());
    EXPECT_EQ(CauseOfClosing(m_File), m_Path + ": File too large");
}

TEST_F(CRCFileTest, ReportsAPayloadThatCannotBeReadBack) {
    ASSERT_TRUE(m_File.Open(m_Path, "wb").Empty());
    EXPECT_EQ(Write(m_File, "123"), 3U);
    EXPECT_EQ(CauseOfClosing(m_File), m_Path + ": Bad file descriptor");
    const std::string pipe = m_Folder.File("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    ASSERT_TRUE(m_File.Open(pipe, "w+b").Empty());
    EXPECT_EQ(CauseOfClosing(m_File), pipe + ": Illegal seek");
}

}  // namespace
