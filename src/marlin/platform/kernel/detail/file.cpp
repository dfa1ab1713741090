// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/file.h>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
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

int File::Reserve(std::uint64_t size) const noexcept {
    const int error = size == 0 ? 0 : ::posix_fallocate(m_Descriptor, 0, static_cast<off_t>(size));
    return error == EINVAL || error == EOPNOTSUPP ? 0 : error;
}

int File::Resize(std::uint64_t size) const noexcept {
    return ErrorOf(::ftruncate(m_Descriptor, static_cast<off_t>(size)));
}

int File::Sync() const noexcept {
    return ErrorOf(::fsync(m_Descriptor));
}

// The owner first: giving a file away clears some of its mode bits.
int File::TakeAttributes(const FileStatus& other) const noexcept {
    if (::fchown(m_Descriptor, other.Owner, other.Group) != 0 && errno != EPERM) {
        return errno;
    }
    return ErrorOf(::fchmod(m_Descriptor, other.Mode));
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

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

int FollowLinks(std::string& path) {
    constexpr int mostLinks = 40;  // the system's own limit
    std::string followed = path;
    std::string target(4096, '\0');  // no path is longer
    for (int i = 0; i < mostLinks; ++i) {
        const ssize_t length = ::readlink(followed.c_str(), target.data(), target.size());
        if (length < 0 && errno != EINVAL && errno != ENOENT) {
            return errno;
        }
        if (length < 0) {  // no link, or no file
            path = followed;
            return 0;
        }
        const std::string next = target.substr(0, static_cast<std::size_t>(length));
        followed = (next.starts_with('/') ? std::string() : FolderOf(followed)).append(next);
    }
    return ELOOP;
}

// Reads until the end and not up to a size told before, which pipes and devices do not have.
int ReadWhole(const std::string& path, std::size_t limit, std::string& bytes,
              File::WAITING waiting) {
    constexpr std::size_t smallestStep = 64 * 1024;
    File file;
    if (const int error = file.OpenForReading(path, waiting); error != 0) {
        return error;
    }
    std::string read;
    std::size_t count = 1;
    while (count != 0) {
        const std::size_t size = read.size();
        const std::size_t step = std::max(smallestStep, size);
        read.resize(size + std::min(step, limit - size) +
                    1);  // the last byte is one beyond the limit
        if (const int error = file.Read(read.data() + size, read.size() - size, count);
            error != 0) {
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
