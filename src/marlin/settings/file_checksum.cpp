// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/platform/kernel/detail/file.h>
#include <marlin/settings/file_checksum.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>

namespace {

using PLATFORM::detail::File;
using PLATFORM::detail::FileStatus;

// Words are fed low byte first, so feeding their bytes is the same.
void AddWords(CRCChecksum& checksum, std::string_view bytes) noexcept {
    checksum += bytes.substr(0, bytes.size() - bytes.size() % 4);
}

// An error ends the words as the end of the file does.
void AddContents(CRCChecksum& checksum, const File& file, unsigned int wordLimit) {
    constexpr std::size_t blockSize = 64 * 1024;
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    std::uint64_t left =
        wordLimit == FileChecksum::AllWords ? UINT64_MAX : std::uint64_t{wordLimit} * 4;
    for (std::size_t got = blockSize; got == blockSize;) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, blockSize));
        got = 0;
        static_cast<void>(file.ReadAll(block.get(), wanted, got));
        AddWords(checksum, std::string_view(block.get(), got));
        left -= got;
    }
}

}  // namespace

FileChecksum::FileChecksum(const std::string& path, unsigned int wordLimit) : m_Path(path) {
    FileStatus status;
    File file;
    // Looked at before it is opened: opening a pipe may wait, and opening a device act.
    if (PLATFORM::detail::StatusOf(path, status) != 0 ||
        status.Kind != PLATFORM::detail::FILE_KIND::REGULAR || file.OpenForReading(path) != 0) {
        return;
    }
    CRCChecksum checksum;
    checksum += static_cast<unsigned int>(status.ModifiedSeconds);
    AddContents(checksum, file, wordLimit);
    m_Value = checksum.Value();
}
