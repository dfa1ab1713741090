// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// A fingerprint of a file, taken once, when it is made: its modification time and its first
/// 32-bit words. A host takes another later and compares, to see whether the file changed. Its
/// value is 0 when the file cannot be opened, or is a folder, device or pipe. A value.
/// @code
/// const ErrorString made = MARLINSUITE::ReplaceFile("a.ini", "[Chart]\n");
/// const FileChecksum before("a.ini", FileChecksum::AllWords);
/// const ErrorString changed = MARLINSUITE::ReplaceFile("a.ini", "[Plots]\n");
/// assert(made.Empty() && changed.Empty());
/// assert(FileChecksum("a.ini", FileChecksum::AllWords) != before);
/// @endcode
class MARLIN_API FileChecksum {
public:
    /// Word limit: no limit.
    static constexpr unsigned int AllWords = 0xFFFFFFFFU;

    /// Covers the first `wordLimit` words; bytes after the last whole word never count.
    FileChecksum(const std::string& path, unsigned int wordLimit);

    [[nodiscard]] unsigned int Value() const noexcept { return m_Value; }

    // The values alone are compared.
    bool operator==(const FileChecksum& other) const noexcept { return m_Value == other.m_Value; }
    bool operator!=(const FileChecksum& other) const noexcept { return m_Value != other.m_Value; }

private:
    std::string m_Path;
    unsigned int m_Value = 0;
};
