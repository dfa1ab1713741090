// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/file.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PLATFORM::detail {

namespace {

// The error number of a call that returns -1 on failure.
int ErrorOf(int result) noexcept {
    return result < 0 ? errno : 0;
}

FileStatus Converted(const struct stat& status) noexcept {
    const FILE_KIND kind = S_ISREG(status.st_mode)   ? FILE_KIND::REGULAR
                           : S_ISDIR(status.st_mode) ? FILE_KIND::FOLDER
                                                     : FILE_KIND::OTHER;
    return {kind,
            static_cast<std::uint64_t>(status.st_size),
            status.st_mtime,
            status.st_mode & 07777U,
            status.st_uid,
            status.st_gid};
}

// The name that the system gives an open file of this process.
std::array<char, 32> NameOf(int descriptor) noexcept {
    std::array<char, 32> name{};
    static_cast<void>(std::snprintf(name.data(), name.size(), "/proc/self/fd/%d", descriptor));
    return name;
}

int WriteZeros(int descriptor, std::uint64_t from, std::uint64_t to) noexcept {
    constexpr std::array<char, 4096> zeros{};
    while (from < to) {
        const auto size =
            static_cast<std::size_t>(std::min<std::uint64_t>(zeros.size(), to - from));
        const ssize_t written = ::pwrite(descriptor, zeros.data(), size, static_cast<off_t>(from));
        if (written >= 0) {
            from += static_cast<std::uint64_t>(written);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

// For a pipe or terminal that another program set not to wait.
void AwaitSpace(int descriptor) noexcept {
    pollfd request{descriptor, POLLOUT, 0};
    static_cast<void>(::poll(&request, 1, -1));  // the next write has the error
}

}  // namespace

File& File::operator=(File&& other) noexcept {
    if (this != &other) {
        static_cast<void>(Close());
        m_Descriptor = std::exchange(other.m_Descriptor, -1);
    }
    return *this;
}

// No program that a host starts inherits the file.
int File::Open(const std::string& path, int flags, unsigned int mode) noexcept {
    static_cast<void>(Close());
    do {
        m_Descriptor = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    } while (m_Descriptor < 0 && errno == EINTR);
    return ErrorOf(m_Descriptor);
}

// The system opens a folder too, and refuses only to read it.
int File::OpenForReading(const std::string& path, WAITING waiting) noexcept {
    const int flags = waiting == WAITING::WAIT ? O_RDONLY : O_RDONLY | O_NONBLOCK;
    FileStatus status;
    int error = Open(path, flags);
    if (error == 0) {
        error = Status(status);
    }
    if (error == 0 && status.Kind == FILE_KIND::FOLDER) {
        error = EISDIR;
    }
    if (error != 0) {
        static_cast<void>(Close());
    }
    return error;
}

int File::OpenForWriting(const std::string& path) noexcept {
    return Open(path, O_WRONLY);
}

int File::Create(const std::string& path, unsigned int mode) noexcept {
    return Open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
}

// The name under which the file would be linked has to be there, or a whole file were written
// in vain.
int File::CreateUnnamed(const std::string& folder, unsigned int mode) noexcept {
    int error = Open(folder, O_WRONLY | O_TMPFILE, mode);
    if (error == 0 && ::access(NameOf(m_Descriptor).data(), F_OK) != 0) {
        error = errno;
        static_cast<void>(Close());
    }
    return error;
}

int File::LinkTo(const std::string& path) const {
    return ErrorOf(
        ::linkat(AT_FDCWD, NameOf(m_Descriptor).data(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW));
}

int File::OpenDescriptor(int descriptor) noexcept {
    static_cast<void>(Close());
    m_Descriptor = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    return ErrorOf(m_Descriptor);
}

// After EINTR the system has closed the file; closing again could hit one opened since.
int File::Close() noexcept {
    const int descriptor = std::exchange(m_Descriptor, -1);
    return descriptor >= 0 && ::close(descriptor) != 0 && errno != EINTR ? errno : 0;
}

int File::Read(char* buffer, std::size_t size, std::size_t& count) const noexcept {
    ssize_t result = 0;
    do {
        result = ::read(m_Descriptor, buffer, size);
    } while (result < 0 && errno == EINTR);
    if (result < 0) {
        return errno;
    }
    count = static_cast<std::size_t>(result);
    return 0;
}

int File::ReadAll(char* buffer, std::size_t size, std::size_t& count) const noexcept {
    std::size_t read = 0;
    std::size_t piece = 1;
    while (read < size && piece != 0) {
        if (const int error = Read(buffer + read, size - read, piece); error != 0) {
            return error;
        }
        read += piece;
    }
    count = read;
    return 0;
}

int File::WriteAll(std::string_view bytes) const noexcept {
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_Descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            AwaitSpace(m_Descriptor);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

int File::Status(FileStatus& status) const noexcept {
    struct stat found {};
    const int error = ErrorOf(::fstat(m_Descriptor, &found));
    if (error == 0) {
        status = Converted(found);
    }
    return error;
}

// Where the file system cannot reserve, the bytes by which the file grows are written. The
// emulation of the system's library would read the file, which is open for writing alone.
int File::Reserve(std::uint64_t present, std::uint64_t size) const noexcept {
    if (size == 0) {
        return 0;
    }
    const int error = ErrorOf(::fallocate(m_Descriptor, 0, 0, static_cast<off_t>(size)));
    return error == EOPNOTSUPP || error == ENOSYS ? WriteZeros(m_Descriptor, present, size) : error;
}

int File::Resize(std::uint64_t size) const noexcept {
    return ErrorOf(::ftruncate(m_Descriptor, static_cast<off_t>(size)));
}

int File::Sync() const noexcept {
    return ErrorOf(::fsync(m_Descriptor));
}

int StatusOf(const std::string& path, FileStatus& status) noexcept {
    struct stat found {};
    const int error = ErrorOf(::stat(path.c_str(), &found));
    if (error == 0) {
        status = Converted(found);
    }
    return error;
}

// The effective user counts, as when the file is opened.
int CheckWritable(const std::string& path) noexcept {
    return ErrorOf(::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS));
}

// Reads until the end and not up to a size told before, which pipes and devices do not have.
int ReadWhole(const std::string& path, std::size_t limit, std::string& bytes,
              File::WAITING waiting) {
    constexpr std::size_t smallestStep = 64 * 1024;
    File file;
    FileStatus status;
    int error = file.OpenForReading(path, waiting);
    if (error == 0) {
        error = file.Status(status);
    }
    if (error != 0 || status.Size > limit) {  // a pipe or a device has no size
        return error != 0 ? error : EFBIG;
    }
    std::string read;
    std::size_t count = 1;
    while (count != 0) {
        const std::size_t size = read.size();
        const std::size_t step = std::max(smallestStep, size);
        read.resize(size + std::min(step, limit - size) +
                    1);  // the last byte is one beyond the limit
        error = file.Read(read.data() + size, read.size() - size, count);
        if (error != 0) {
            return error;
        }
        read.resize(size + count);
        if (read.size() > limit) {
            return EFBIG;
        }
    }
    bytes = std::move(read);
    return 0;
}

}  // namespace PLATFORM::detail
