// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// The file calls of the operating system. No other folder calls it, so that this one alone is
/// swapped on another system.
///
/// Every operation that returns an `int` returns 0 or the error number of the system, one of
/// `<cerrno>`; `std::generic_category().message()` has its text. On failure outputs keep their
/// values. Calls that a signal interrupted are made again.
namespace PLATFORM::detail {

enum class FILE_KIND { REGULAR, FOLDER, OTHER };  ///< Other: a device, a pipe, a socket.

/// The properties of a file.
struct FileStatus {
    FILE_KIND Kind = FILE_KIND::OTHER;
    std::uint64_t Size = 0;            ///< Bytes; without meaning for other kinds.
    std::int64_t ModifiedSeconds = 0;  ///< Since 1970.
    unsigned int Mode = 0;             ///< Permission bits.
    unsigned int Owner = 0;
    unsigned int Group = 0;
};

/// Owns an open file, or none. Destroying it closes the file and drops the result: whoever wrote
/// calls `Close`.
class File {
public:
    enum class WAITING { WAIT, DO_NOT_WAIT };

    File() noexcept = default;
    File(File&& other) noexcept : m_Descriptor(std::exchange(other.m_Descriptor, -1)) {}
    File& operator=(File&& other) noexcept;
    ~File() { static_cast<void>(Close()); }

    /// EISDIR for a folder. A pipe is waited for until it has a writer, unless not to be.
    [[nodiscard]] int OpenForReading(const std::string& path,
                                     WAITING waiting = WAITING::WAIT) noexcept;
    /// Opens a file that exists, at position 0; its contents stay.
    [[nodiscard]] int OpenForWriting(const std::string& path) noexcept;
    /// Makes a file for writing, with the mode bits that the process's mask leaves. EEXIST when
    /// the path has one.
    [[nodiscard]] int Create(const std::string& path, unsigned int mode) noexcept;

    /// Makes a file without a name in a folder, which goes when it is closed unless it was linked.
    /// An error, of any kind, where the file system cannot or links are not possible.
    [[nodiscard]] int CreateUnnamed(const std::string& folder, unsigned int mode) noexcept;
    /// Gives a file that was made without a name this one. EEXIST when it is taken.
    [[nodiscard]] int LinkTo(const std::string& path) const;
    /// Takes a second descriptor of one that the process holds; it shares the position.
    [[nodiscard]] int OpenDescriptor(int descriptor) noexcept;

    [[nodiscard]] bool IsOpen() const noexcept { return m_Descriptor >= 0; }
    /// -1 without an open file.
    [[nodiscard]] int Descriptor() const noexcept { return m_Descriptor; }
    /// A failure may be that of an earlier write. The file is closed in any case.
    int Close() noexcept;

    /// Reads up to `size` bytes; `count` is how many, 0 at the end of the file.
    [[nodiscard]] int Read(char* buffer, std::size_t size, std::size_t& count) const noexcept;
    /// Reads `size` bytes, in as many pieces as the file gives them; fewer are the last ones.
    [[nodiscard]] int ReadAll(char* buffer, std::size_t size, std::size_t& count) const noexcept;
    /// Writes all bytes at the position. On failure some of them may have been written.
    [[nodiscard]] int WriteAll(std::string_view bytes) const noexcept;

    [[nodiscard]] int Status(FileStatus& status) const noexcept;
    /// Takes space on the disk for so many bytes, so that writing them cannot fill it. `present` is
    /// the file's size; a file that was shorter grows, after a failure too.
    [[nodiscard]] int Reserve(std::uint64_t present, std::uint64_t size) const noexcept;
    [[nodiscard]] int Resize(std::uint64_t size) const noexcept;
    /// Returns once the contents are on the disk.
    [[nodiscard]] int Sync() const noexcept;

private:
    [[nodiscard]] int Open(const std::string& path, int flags, unsigned int mode = 0) noexcept;

    int m_Descriptor = -1;
};

/// The status of the file that a path leads to through symbolic links. ENOENT when there is none.
[[nodiscard]] int StatusOf(const std::string& path, FileStatus& status) noexcept;
/// 0 when this process may write the file; EACCES, EROFS and the like when not.
[[nodiscard]] int CheckWritable(const std::string& path) noexcept;

/// Reads a file whole. EFBIG when it has more than `limit` bytes, of which no more are read.
[[nodiscard]] int ReadWhole(const std::string& path, std::size_t limit, std::string& bytes,
                            File::WAITING waiting = File::WAITING::WAIT);

}  // namespace PLATFORM::detail
