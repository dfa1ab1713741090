// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/stream.h>

#include <cerrno>

#include <sys/stat.h>

namespace PLATFORM::detail {

int OpenStream(Stream& stream, const std::string& path, const char* mode) noexcept {
    Stream opened(std::fopen(path.c_str(), mode));
    struct stat status {};
    if (!opened || ::fstat(::fileno(opened.get()), &status) != 0) {
        return errno;
    }
    if (S_ISDIR(status.st_mode)) {
        return EISDIR;
    }
    stream = std::move(opened);
    return 0;
}

bool SeekFromEnd(std::FILE* file, std::int64_t offset) noexcept {
    return ::fseeko(file, offset, SEEK_END) == 0;
}

std::int64_t PositionOf(std::FILE* file) noexcept {
    return ::ftello(file);
}

}  // namespace PLATFORM::detail
