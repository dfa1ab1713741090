// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/line_reader.h>

#include <algorithm>
#include <cerrno>
#include <new>

namespace MARLINSUITE::detail {

int LineReader::Open(const std::string& path) {
    return m_File.OpenForReading(path);
}

bool LineReader::NextAfterRefill(std::string_view& line) {
    std::size_t searched = 0;
    std::size_t found = std::string_view::npos;
    while (found == std::string_view::npos) {
        searched = m_Rest.size();
        if (!Refill()) {
            break;
        }
        found = m_Rest.find('\n', searched);
    }
    if (m_Error != 0 || (found == std::string_view::npos && m_Rest.empty())) {
        return false;
    }
    line = m_Rest.substr(0, found == std::string_view::npos ? found : found + 1);
    m_Rest.remove_prefix(line.size());
    return true;
}

// Moves what is left to the front of the buffer and reads more after it.
bool LineReader::Refill() {
    if (!m_File.IsOpen()) {
        return false;
    }
    const std::size_t kept = m_Rest.size();
    if (kept == m_Capacity) {
        m_Error = Grow();
    } else if (m_Rest.data() != m_Buffer.get()) {  // a pipe gives a long line in many pieces
        std::memmove(m_Buffer.get(), m_Rest.data(), kept);
    }
    std::size_t count = 0;
    if (m_Error == 0) {
        m_Error = m_File.Read(m_Buffer.get() + kept, m_Capacity - kept, count);
        m_Rest = std::string_view(m_Buffer.get(), kept + count);
    }
    return count != 0;
}

// Without a limit a device without line ends would take all memory.
int LineReader::Grow() {
    constexpr std::size_t firstCapacity = 32 * 1024;
    if (m_Capacity == LongestLine) {
        return EFBIG;
    }
    const std::size_t capacity = std::max(firstCapacity, m_Capacity * 2);
    std::unique_ptr<char[]> larger(new (std::nothrow) char[capacity]);
    if (!larger) {
        return ENOMEM;
    }
    std::memcpy(larger.get(), m_Rest.data(), m_Rest.size());
    m_Buffer = std::move(larger);
    m_Capacity = capacity;
    return 0;
}

}  // namespace MARLINSUITE::detail
