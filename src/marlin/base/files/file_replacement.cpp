// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/file_output.h>
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/kernel/detail/file_descriptor.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace MARLINSUITE {

namespace {

using PLATFORM::FileDescriptor;

ErrorString Failure(const std::string& path, int error) {
    return ErrorString(path + ": " + std::generic_category().message(error));
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

// Follows symbolic links, the last of which may name a file that does not exist yet.
int FollowLinks(std::string& path) {
    constexpr int mostLinks = 40;
    std::string target(4096, '\0');
    for (int i = 0; i < mostLinks; ++i) {
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0) {
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        }
        const std::string next = target.substr(0, static_cast<std::size_t>(length));
        path = (next.starts_with('/') ? std::string() : FolderOf(path)).append(next);
    }
    return ELOOP;
}

int WriteContents(FileDescriptor& file, const Contents& contents) {
    int error = 0;
    BlockOutput output([&](std::string_view block) {
        if (error == 0) {
            error = file.WriteAll(block);
        }
    });
    contents(output);
    output.Finish();
    return error;
}

off_t SizeOf(const Contents& contents) {
    off_t size = 0;
    BlockOutput output([&](std::string_view block) { size += static_cast<off_t>(block.size()); });
    contents(output);
    output.Finish();
    return size;
}

// A new file in the folder of the target, removed unless it was renamed.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& target) : m_Folder(FolderOf(target)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!m_Path.empty()) {
            ::unlink(m_Path.c_str());
        }
    }

    [[nodiscard]] int Create(unsigned int mode) {
        static std::atomic<unsigned int> counter = 0;
        constexpr int tries = 100;
        int error = EEXIST;
        for (int i = 0; i < tries && error == EEXIST; ++i) {
            std::string path = m_Folder + ".marlin-";
            AppendNumber(path, static_cast<unsigned int>(::getpid()));
            path += '-';
            AppendNumber(path, counter++);
            path += ".tmp";
            error = m_File.Open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode);
            if (error == 0) {
                m_Path = path;
            }
        }
        return error;
    }

    [[nodiscard]] int Fill(const Contents& contents) {
        if (const int error = WriteContents(m_File, contents); error != 0) {
            return error;
        }
        return ::fsync(m_File.Get()) != 0 ? errno : 0;
    }

    // Mode bits are part of what is kept, so they must succeed; the owner is kept where this
    // process may give files away.
    [[nodiscard]] int TakeAttributes(const struct stat& old) {
        if (::fchown(m_File.Get(), old.st_uid, old.st_gid) != 0 && errno != EPERM) {
            return errno;
        }
        return ::fchmod(m_File.Get(), old.st_mode & 07777U) != 0 ? errno : 0;
    }

    [[nodiscard]] int RenameOver(const std::string& target) {
        if (const int error = m_File.Close(); error != 0) {
            return error;
        }
        if (std::rename(m_Path.c_str(), target.c_str()) != 0) {
            return errno;
        }
        m_Path.clear();
        FileDescriptor folder;  // the rename itself reaches the disk with its folder
        if (folder.Open(m_Folder.c_str(), O_RDONLY | O_DIRECTORY) == 0) {
            ::fsync(folder.Get());
        }
        return 0;
    }

private:
    std::string m_Folder;
    std::string m_Path;
    FileDescriptor m_File;
};

bool FolderRefused(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

// Reserves the new size before the first old byte is touched, so that a full disk is noticed
// while the file is still whole.
int RewriteInPlace(const std::string& path, const Contents& contents, const struct stat& old) {
    FileDescriptor file;
    if (const int error = file.Open(path.c_str(), O_WRONLY); error != 0) {
        return error;
    }
    const off_t size = S_ISREG(old.st_mode) ? SizeOf(contents) : 0;
    if (size > 0) {
        const int error = ::posix_fallocate(file.Get(), 0, size);
        if (error != 0 && error != EINVAL && error != EOPNOTSUPP) {
            return ::ftruncate(file.Get(), old.st_size) != 0 ? errno : error;
        }
    }
    if (const int error = WriteContents(file, contents); error != 0) {
        return error;
    }
    if (S_ISREG(old.st_mode) && (::ftruncate(file.Get(), size) != 0 || ::fsync(file.Get()) != 0)) {
        return errno;
    }
    return file.Close();
}

int Replace(const std::string& target, const Contents& contents) {
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) {
        return errno;
    }
    if (exists && S_ISDIR(old.st_mode)) {
        return EISDIR;
    }
    // A file that its owner protected against writing stays, though its folder would let it
    // be replaced.
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        return errno;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return RewriteInPlace(target, contents, old);
    }
    TemporaryFile temporary(target);
    // What a file hides from others shows in no moment of its replacement.
    int error = temporary.Create(exists ? 0600U : 0666U);
    if (error == 0) {
        error = temporary.Fill(contents);
        if (error == 0 && exists) {
            error = temporary.TakeAttributes(old);
        }
        if (error == 0) {
            error = temporary.RenameOver(target);
        }
    }
    return exists && FolderRefused(error) ? RewriteInPlace(target, contents, old) : error;
}

int ReadAll(const std::string& path, std::string& bytes) {
    FileDescriptor file;
    if (const int error = file.Open(path.c_str(), O_RDONLY); error != 0) {
        return error;
    }
    constexpr std::size_t step = 256 * 1024;
    std::size_t count = 1;
    while (count != 0) {
        const std::size_t size = bytes.size();
        bytes.resize(size + step);
        const int error = file.Read(bytes.data() + size, step, count);
        bytes.resize(size + count);
        if (error != 0) {
            return error;
        }
    }
    return 0;
}

}  // namespace

ErrorString ReplaceFile(const std::string& path, std::string_view bytes) {
    return ReplaceFile(path, [bytes](BlockOutput& output) { output.Pass(bytes); });
}

ErrorString ReplaceFile(const std::string& path, const Contents& contents) {
    std::string target = path;
    int error = FollowLinks(target);
    if (error == 0) {
        error = Replace(target, contents);
    }
    return error == 0 ? ErrorString() : Failure(path, error);
}

ErrorString ReadFile(const std::string& path, std::string& bytes) {
    std::string read;
    if (const int error = ReadAll(path, read); error != 0) {
        return Failure(path, error);
    }
    bytes = std::move(read);
    return {};
}

}  // namespace MARLINSUITE
