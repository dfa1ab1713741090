// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/file_checksum.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

#include <sys/stat.h>

namespace {

struct Closer {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};

// Words are fed low byte first, so feeding their bytes is the same.
void AddWords(CRCChecksum& checksum, std::FILE* file, unsigned int wordLimit) {
    constexpr std::size_t blockSize = 64 * 1024;
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    std::uint64_t left =
        wordLimit == FileChecksum::AllWords ? UINT64_MAX : std::uint64_t{wordLimit} * 4;
    while (left > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, blockSize));
        const std::size_t got = std::fread(block.get(), 1, wanted, file);
        checksum += std::string_view(block.get(), got - got % 4);
        if (got < wanted) {
            return;
        }
        left -= got;
    }
}

}  // namespace

FileChecksum::FileChecksum(const std::string& path, unsigned int wordLimit) : m_Path(path) {
    if (path.empty()) {
        return;
    }
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return;
    }
    CRCChecksum checksum;
    checksum += static_cast<unsigned int>(status.st_mtime);
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        return;
    }
    AddWords(checksum, file.get(), wordLimit);
    m_Value = checksum.Value();
}
