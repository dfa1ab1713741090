// SPDX-License-Identifier: MIT
#include <marlin/core/crc32.h>
#include <marlin/platform/kernel/detail/stream.h>
#include <marlin/resources/texts.h>
#include <marlin/settings/crc_file.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <utility>

/// The open stream that copies share; without a file once any of them has closed it.
struct CRCFile::Stream {
    PLATFORM::detail::Stream File;
    std::string Path;
    bool Writing = false;
    int Error = 0;

    // Remembers the first failure, whose mark moving to the start would clear. Called at once
    // after what may have failed.
    void Note() noexcept {
        if (Error == 0 && File && std::ferror(File.get()) != 0) {
            Error = errno != 0 ? errno : EIO;
        }
    }
    void Close() noexcept {
        const bool closed = std::fclose(File.release()) == 0;
        if (Error == 0 && !closed) {
            Error = errno;
        }
    }
};

namespace {

constexpr unsigned int trailerSize = 4;
using Trailer = std::array<unsigned char, trailerSize>;

Trailer TrailerOf(unsigned int value) {
    return {static_cast<unsigned char>(value), static_cast<unsigned char>(value >> 8),
            static_cast<unsigned char>(value >> 16), static_cast<unsigned char>(value >> 24)};
}

// Reads the last four bytes of a file; `length` is that of the payload before them.
bool ReadTrailer(std::FILE* file, unsigned int& value, std::uint64_t& length) {
    if (!PLATFORM::detail::SeekFromEnd(file, -std::int64_t{trailerSize})) {
        return false;
    }
    length = static_cast<std::uint64_t>(PLATFORM::detail::PositionOf(file));
    Trailer bytes{};
    if (std::fread(bytes.data(), 1, trailerSize, file) != trailerSize) {
        return false;
    }
    value = bytes[0] | static_cast<unsigned int>(bytes[1]) << 8 |
            static_cast<unsigned int>(bytes[2]) << 16 | static_cast<unsigned int>(bytes[3]) << 24;
    return true;
}

std::string OpeningError(const std::string& path) {
    return std::string(MARLINSUITE::Message(MARLINSUITE::MESSAGE::ERROR_OPENING_FILE)) + path +
           "\".";
}

}  // namespace

CRCFile& CRCFile::operator=(const CRCFile& other) {
    if (m_Stream != other.m_Stream) {
        if (m_Stream.use_count() == 1 && IsOpen()) {
            Complete();
        }
        m_Stream = other.m_Stream;
    }
    return *this;
}

CRCFile::~CRCFile() {
    if (m_Stream.use_count() == 1 && IsOpen()) {
        Complete();
    }
}

std::FILE* CRCFile::File() const noexcept {
    return m_Stream ? m_Stream->File.get() : nullptr;
}

bool CRCFile::IsOpen() const noexcept {
    return File() != nullptr;
}

ErrorString CRCFile::Open(const std::string& path, const char* mode) {
    Close();
    auto stream = std::make_shared<Stream>();
    stream->Path = path;
    stream->Writing = std::strpbrk(mode, "wW") != nullptr;
    if (const int error = PLATFORM::detail::OpenStream(stream->File, path, mode); error != 0) {
        return ErrorString(OpeningError(path)).SetCause(MARLINSUITE::SystemReason(path, error));
    }
    m_Stream = std::move(stream);
    if (m_Stream->Writing) {
        return {};
    }
    if (!CheckCRC()) {
        m_Stream.reset();
        const std::string_view reason =
            MARLINSUITE::Message(MARLINSUITE::MESSAGE::INVALID_CHECKSUM);
        return ErrorString(OpeningError(path) + std::string(reason));
    }
    Rewind();
    return {};
}

void CRCFile::Close() {
    if (Complete()) {
        ErrorString::RecordSuccess();
    }
}

// When a copy has closed the stream already, its result is recorded once more: the caller of this
// object has not seen it.
bool CRCFile::Complete() {
    if (!m_Stream) {
        return true;
    }
    if (IsOpen()) {
        if (m_Stream->Writing && m_Stream->Error == 0 && !AddChecksum() && m_Stream->Error == 0) {
            m_Stream->Error = errno;
        }
        m_Stream->Close();
    }
    const auto stream = std::exchange(m_Stream, nullptr);
    if (stream->Error != 0) {
        ErrorString::RecordFailure(MARLINSUITE::SystemReason(stream->Path, stream->Error));
    }
    return stream->Error == 0;
}

unsigned int CRCFile::Read(void* buffer, unsigned int size, unsigned int count) {
    return IsOpen() ? static_cast<unsigned int>(std::fread(buffer, size, count, File())) : 0;
}

unsigned int CRCFile::Write(const void* buffer, unsigned int size, unsigned int count) {
    if (!IsOpen()) {
        return 0;
    }
    const std::size_t written = std::fwrite(buffer, size, count, File());
    m_Stream->Note();
    return static_cast<unsigned int>(written);
}

// Moving writes what is still held back.
bool CRCFile::Seek(int offset, int origin) {
    if (!IsOpen()) {
        return false;
    }
    const bool moved = std::fseek(File(), offset, origin) == 0;
    m_Stream->Note();
    return moved;
}

unsigned int CRCFile::Tell() const {
    return IsOpen() ? static_cast<unsigned int>(std::ftell(File())) : 0xFFFFFFFFU;
}

void CRCFile::Rewind() {
    static_cast<void>(Seek(0, SEEK_SET));  // as `rewind`, which reports nothing either
    if (IsOpen()) {
        std::clearerr(File());
    }
}

bool CRCFile::Flush() {
    if (!IsOpen()) {
        return false;
    }
    const bool flushed = std::fflush(File()) == 0;
    m_Stream->Note();
    return flushed;
}

unsigned int CRCFile::GetCRC(const std::string& path) {
    PLATFORM::detail::Stream file;
    unsigned int value = 0;
    std::uint64_t length = 0;
    return PLATFORM::detail::OpenStream(file, path, "rb") == 0 &&
                   ReadTrailer(file.get(), value, length)
               ? value
               : 0;
}

// A file that ends early leaves the register without its final inversion, which matches no
// stored checksum but by chance.
unsigned int CRCFile::ComputeCRC(std::uint64_t length) {
    constexpr std::size_t blockSize = 256 * 1024;
    Rewind();
    if (length == 0) {
        return 0;
    }
    const auto block = std::make_unique_for_overwrite<unsigned char[]>(blockSize);
    unsigned int state = CRC32::Start;
    while (length > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(length, blockSize));
        const std::size_t got = std::fread(block.get(), 1, wanted, File());
        state = CRC32::Update(state, block.get(), got);
        if (got < wanted) {
            return state;
        }
        length -= got;
    }
    return ~state;
}

bool CRCFile::CheckCRC() {
    unsigned int stored = 0;
    std::uint64_t length = 0;
    return ReadTrailer(File(), stored, length) && stored == ComputeCRC(length);
}

// A stream that cannot be read back (its mode lacked the "+") gets a trailer that matches
// nothing, and the failure is reported.
bool CRCFile::AddChecksum() {
    if (!PLATFORM::detail::SeekFromEnd(File(), 0)) {
        return false;  // what was held back could not be written
    }
    const Trailer bytes =
        TrailerOf(ComputeCRC(static_cast<std::uint64_t>(PLATFORM::detail::PositionOf(File()))));
    m_Stream->Note();
    return PLATFORM::detail::SeekFromEnd(File(), 0) &&
           std::fwrite(bytes.data(), 1, trailerSize, File()) == trailerSize;
}
