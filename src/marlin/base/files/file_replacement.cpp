// SPDX-License-Identifier: MIT
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/kernel/detail/file_attributes.h>
#include <marlin/platform/kernel/detail/new_file.h>
#include <marlin/platform/kernel/detail/path_links.h>

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

// Before the rename the file is on the disk, so that a crash leaves either file whole.
int WriteNewFile(NewFile& file, std::string_view bytes, unsigned int mode) {
    int error = file.Create(mode);
    if (error == 0) {
        error = file.Contents().WriteAll(bytes);
    }
    return error == 0 ? file.Contents().Sync() : error;
}

// A device or a pipe takes bytes, and has no size. What is open, standard output above all, is
// written from its own position on: a second one would overwrite what others wrote.
int WriteOther(const std::string& path, std::string_view bytes) {
    File file;
    const int descriptor = PLATFORM::detail::DescriptorOf(path);
    int error = descriptor >= 0 ? file.OpenDescriptor(descriptor) : file.OpenForWriting(path);
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
    if (const int error = file.Reserve(old.Size, bytes.size()); error != 0) {
        const int resized = file.Resize(old.Size);
        const int kept = PLATFORM::detail::KeepSetIdBits(file, old);
        return resized != 0 ? resized : kept != 0 ? kept : error;
    }
    int error = file.WriteAll(bytes);
    if (error == 0) {
        error = file.Resize(bytes.size());
    }
    if (error == 0) {
        error = PLATFORM::detail::KeepSetIdBits(file, old);
    }
    if (error == 0) {
        error = file.Sync();
    }
    return error == 0 ? file.Close() : error;
}

// Nobody else may read the new file until it is complete, since the old one may hide its contents.
int ReplaceRegular(const std::string& target, std::string_view bytes, const FileStatus& old) {
    constexpr unsigned int ownerAlone = 0600;
    NewFile file(target);
    int error = WriteNewFile(file, bytes, ownerAlone);
    if (error == 0) {
        if (PLATFORM::detail::TakeAttributes(file.Contents(), target, old) != 0) {
            return RewriteInPlace(target, bytes, old);
        }
        error = file.TakePlace();
    }
    return FolderRefused(error) ? RewriteInPlace(target, bytes, old) : error;
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
    return old.Kind == FILE_KIND::OTHER ? WriteOther(target, bytes)
                                        : ReplaceRegular(target, bytes, old);
}

int MakeFile(const std::string& target, std::string_view bytes) {
    constexpr unsigned int asMasked = 0666;
    NewFile file(target);
    const int error = WriteNewFile(file, bytes, asMasked);
    return error == 0 ? file.TakePlace() : error;
}

int Replace(std::string target, std::string_view bytes) {
    if (const int error = PLATFORM::detail::FollowLinks(target); error != 0) {
        return error;
    }
    if (PLATFORM::detail::DescriptorOf(target) >= 0) {
        return WriteOther(target, bytes);
    }
    FileStatus old;
    const int error = PLATFORM::detail::StatusOf(target, old);
    if (error == ENOENT) {
        return MakeFile(target, bytes);
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
