// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/detail/file.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace MARLINSUITE::detail {

/// Yields the lines of a file or of a text, each with its line feed. A file is read
/// through one buffer that grows only to hold a longer line, so that reading costs little memory
/// beside what is kept. Lines are good until the next call.
class LineReader {
public:
    /// In bytes; a file with a longer line, such as an endless one, is not read on (EFBIG).
    static constexpr std::size_t LongestLine = 64 * 1024 * 1024;

    LineReader() = default;
    /// Reads from a text, which must outlive the reader.
    explicit LineReader(std::string_view text) noexcept : m_Rest(text) {}

    /// 0, or the system's error number; a folder is no file.
    [[nodiscard]] int Open(const std::string& path);

    /// False at the end and on an error.
    bool Next(std::string_view& line) {
        const void* const found = std::memchr(m_Rest.data(), '\n', m_Rest.size());
        if (!found) {
            return NextAfterRefill(line);
        }
        const auto length =
            static_cast<std::size_t>(static_cast<const char*>(found) - m_Rest.data()) + 1;
        line = m_Rest.substr(0, length);
        m_Rest.remove_prefix(length);
        return true;
    }

    /// The error that ended the reading, or 0.
    [[nodiscard]] int Error() const noexcept { return m_Error; }

private:
    bool NextAfterRefill(std::string_view& line);
    bool Refill();
    int Grow();

    PLATFORM::detail::File m_File;
    std::unique_ptr<char[]> m_Buffer;
    std::size_t m_Capacity = 0;
    std::string_view m_Rest = std::string_view("", 0);  // never null, for memchr
    int m_Error = 0;
};

}  // namespace MARLINSUITE::detail
