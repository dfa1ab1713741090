// SPDX-License-Identifier: MIT
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/kernel/detail/new_file.h>

#include <cerrno>

namespace MARLINSUITE {

namespace {

using PLATFORM::detail::File;
using PLATFORM::detail::FILE_KIND;
using PLATFORM::detail::FileStatus;
using PLATFORM::detail::NewFile;

// Errors of a folder that takes no new file, though its file may be written.
bool FolderRefused(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

int WriteNewFile(NewFile& file, std::string_view bytes, const FileStatus* old) {
    // Until it has the old file's mode, nobody else may read what that one may hide.
    constexpr unsigned int ownerAlone = 0600;
    constexpr unsigned int asMasked = 0666;
    int error = file.Create(old ? ownerAlone : asMasked);
    if (error == 0) {
        error = file.Contents().WriteAll(bytes);
    }
    if (error == 0) {
        // Before the rename, so that a crash leaves either file whole.
        error = file.Contents().Sync();
    }
    if (error == 0 && old) {
        error = file.Contents().TakeAttributes(*old);
    }
    return error == 0 ? file.TakePlace() : error;
}

// A device or a pipe takes bytes, and has no size.
int WriteOther(const std::string& path, std::string_view bytes) {
    File file;
    int error = file.OpenForWriting(path);
    if (error == 0) {
        error = file.WriteAll(bytes);
    }
    return error == 0 ? file.Close() : error;
}

// Reserves the new size before the first old byte is touched, so that a full disk is noticed
// while the file is still whole.
int RewriteInPlace(const std::string& path, std::string_view bytes, const FileStatus& old) {
    File file;
    if (const int error = file.OpenForWriting(path); error != 0) {
        return error;
    }
    if (const int error = file.Reserve(bytes.size()); error != 0) {
        const int resized = file.Resize(old.Size);
        return resized != 0 ? resized : error;
    }
    int error = file.WriteAll(bytes);
    if (error == 0) {
        error = file.Resize(bytes.size());
    }
    if (error == 0) {
        error = file.Sync();
    }
    return error == 0 ? file.Close() : error;
}

int ReplaceOld(const std::string& target, std::string_view bytes, const FileStatus& old) {
    if (old.Kind == FILE_KIND::FOLDER) {
        return EISDIR;
    }
    // A file that its owner protected against writing stays, though its folder would let it
    // be replaced.
    if (const int error = PLATFORM::detail::CheckWritable(target); error != 0) {
        return error;
    }
    if (old.Kind == FILE_KIND::OTHER) {
        return WriteOther(target, bytes);
    }
    NewFile file(target);
    const int error = WriteNewFile(file, bytes, &old);
    return FolderRefused(error) ? RewriteInPlace(target, bytes, old) : error;
}

int Replace(std::string target, std::string_view bytes) {
    if (const int error = PLATFORM::detail::FollowLinks(target); error != 0) {
        return error;
    }
    FileStatus old;
    const int error = PLATFORM::detail::StatusOf(target, old);
    if (error == ENOENT) {
        NewFile file(target);
        return WriteNewFile(file, bytes, nullptr);
    }
    return error == 0 ? ReplaceOld(target, bytes, old) : error;
}

ErrorString ResultOf(const std::string& path, int error) {
    return error == 0 ? ErrorString() : ErrorString(SystemReason(path, error));
}

}  // namespace

ErrorString ReplaceFile(const std::string& path, std::string_view bytes) {
    return ResultOf(path, Replace(path, bytes));
}

ErrorString ReadFile(const std::string& path, std::string& bytes, std::size_t limit) {
    const int error = PLATFORM::detail::ReadWhole(path, limit, bytes);
    if (error != EFBIG) {
        return ResultOf(path, error);
    }
    std::string text = path + ": larger than ";
    AppendNumber(text, static_cast<unsigned long>(limit / (1024 * 1024)));
    return ErrorString(text + " MiB");
}

}  // namespace MARLINSUITE
