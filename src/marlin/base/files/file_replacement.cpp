// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/file_output.h>
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

int WriteContents(const File& file, const Contents& contents) {
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

std::uint64_t SizeOf(const Contents& contents) {
    std::uint64_t size = 0;
    BlockOutput output([&](std::string_view block) { size += block.size(); });
    contents(output);
    output.Finish();
    return size;
}

// Errors of a folder that takes no new file, though its file may be written.
bool FolderRefused(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

int WriteNewFile(NewFile& file, const Contents& contents, const FileStatus* old) {
    // Until it has the old file's mode, nobody else may read what that one may hide.
    constexpr unsigned int ownerAlone = 0600;
    constexpr unsigned int asMasked = 0666;
    int error = file.Create(old ? ownerAlone : asMasked);
    if (error == 0) {
        error = WriteContents(file.Contents(), contents);
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
int WriteOther(const std::string& path, const Contents& contents) {
    File file;
    int error = file.OpenForWriting(path);
    if (error == 0) {
        error = WriteContents(file, contents);
    }
    return error == 0 ? file.Close() : error;
}

// Reserves the new size before the first old byte is touched, so that a full disk is noticed
// while the file is still whole.
int RewriteInPlace(const std::string& path, const Contents& contents, const FileStatus& old) {
    File file;
    if (const int error = file.OpenForWriting(path); error != 0) {
        return error;
    }
    const std::uint64_t size = SizeOf(contents);
    if (const int error = file.Reserve(size); error != 0) {
        const int resized = file.Resize(old.Size);
        return resized != 0 ? resized : error;
    }
    int error = WriteContents(file, contents);
    if (error == 0) {
        error = file.Resize(size);
    }
    if (error == 0) {
        error = file.Sync();
    }
    return error == 0 ? file.Close() : error;
}

int ReplaceOld(const std::string& target, const Contents& contents, const FileStatus& old) {
    if (old.Kind == FILE_KIND::FOLDER) {
        return EISDIR;
    }
    // A file that its owner protected against writing stays, though its folder would let it
    // be replaced.
    if (const int error = PLATFORM::detail::CheckWritable(target); error != 0) {
        return error;
    }
    if (old.Kind == FILE_KIND::OTHER) {
        return WriteOther(target, contents);
    }
    NewFile file(target);
    const int error = WriteNewFile(file, contents, &old);
    return FolderRefused(error) ? RewriteInPlace(target, contents, old) : error;
}

int Replace(std::string target, const Contents& contents) {
    if (const int error = PLATFORM::detail::FollowLinks(target); error != 0) {
        return error;
    }
    FileStatus old;
    const int error = PLATFORM::detail::StatusOf(target, old);
    if (error == ENOENT) {
        NewFile file(target);
        return WriteNewFile(file, contents, nullptr);
    }
    return error == 0 ? ReplaceOld(target, contents, old) : error;
}

ErrorString ResultOf(const std::string& path, int error) {
    return error == 0 ? ErrorString() : ErrorString(SystemReason(path, error));
}

}  // namespace

ErrorString ReplaceFile(const std::string& path, std::string_view bytes) {
    return ReplaceFile(path, [bytes](BlockOutput& output) { output.Pass(bytes); });
}

ErrorString ReplaceFile(const std::string& path, const Contents& contents) {
    return ResultOf(path, Replace(path, contents));
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
