// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

/// A binary file with a trailer of four bytes: the CRC-32 of all bytes before it, least
/// significant byte first. Opened for writing it appends the trailer when it is closed; opened
/// for reading it refuses a file whose trailer does not match.
///
/// Copies share one open stream and its position: closing one closes it for all, once. The
/// last one destroyed closes it. For one thread at a time.
/// @code
/// CRCFile file;
/// ErrorString error = file.Open("soundings.bin", "w+b");
/// const unsigned int written = file.Write("123456789", 1, 9);
/// file.Close();
/// assert(error.Empty() && written == 9 && CRCFile::GetCRC("soundings.bin") == 0xCBF43926);
/// error = file.Open("soundings.bin", "rb");
/// assert(error.Empty());
/// @endcode
class MARLIN_API CRCFile {
public:
    CRCFile() = default;
    CRCFile(const CRCFile&) = default;
    CRCFile& operator=(const CRCFile& other);
    ~CRCFile();

    /// Closes an open file, then opens `path` with a mode of the standard I/O library. Modes
    /// with "w" or "W" write; the trailer is computed from the file itself, so such a mode must
    /// also read ("w+b"). With any other mode the trailer is compared, and the position is then 0.
    ErrorString Open(const std::string& path, const char* mode);
    /// Completes and closes an open file. `ErrorString::LastError()` has the outcome: it is empty
    /// after a success and names file and reason when the closing or, since `Open`, any writing
    /// failed. No trailer follows data that is not whole. `Open`, an assignment and the destructor
    /// close in the same way; the last two leave `LastError()` alone after a success.
    void Close();
    [[nodiscard]] bool IsOpen() const noexcept;

    /// Both return the number of whole items transferred; 0 without an open file.
    unsigned int Read(void* buffer, unsigned int size, unsigned int count);
    unsigned int Write(const void* buffer, unsigned int size, unsigned int count);

    /// `origin` as for `fseek`: 0 start, 1 current position, 2 end.
    bool Seek(int offset, int origin);
    /// The position; 0xFFFFFFFF without an open file.
    [[nodiscard]] unsigned int Tell() const;
    void Rewind();
    bool Flush();

    /// The trailer stored in a file, not compared with it; 0 when the file cannot be opened or
    /// is shorter than four bytes.
    [[nodiscard]] static unsigned int GetCRC(const std::string& path);

private:
    struct Stream;

    bool Complete();
    [[nodiscard]] unsigned int ComputeCRC(std::uint64_t length);
    [[nodiscard]] bool CheckCRC();
    [[nodiscard]] bool AddChecksum();
    [[nodiscard]] std::FILE* File() const noexcept;

    std::shared_ptr<Stream> m_Stream;
};
