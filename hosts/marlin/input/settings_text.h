// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/section.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace HOST {

/// The bytes of a settings file, section by section, for changes that leave all other bytes as
/// they were: comments, blank lines, columns, line ends, a byte-order mark. Added lines end as the
/// first line does, and a missing line end of the last one stays missing.
class SettingsText {
public:
    SettingsText() = default;
    /// `preambleSize` bytes come before the first section header.
    SettingsText(std::string_view bytes, std::size_t preambleSize);

    [[nodiscard]] std::string Bytes() const;

    /// A word that somebody typed, in the encoding of the file: UTF-8 where the file is valid
    /// UTF-8, which plain ASCII is, or else Windows-1252. Fails for a character that it lacks.
    [[nodiscard]] std::string FromArgument(const std::string& typed) const;

    /// The lines of each section from its header to the next one.
    [[nodiscard]] std::vector<std::string>& Blocks() noexcept { return m_Blocks; }
    /// The block with the section's name and values; keys that it lacks follow its last key.
    [[nodiscard]] std::string Updated(const std::string& block, const Section& section) const;
    /// The block of a new section, as the library writes it.
    [[nodiscard]] std::string NewBlock(const Section& section) const;
    /// Puts a block at the end, after a blank line.
    void Append(std::string block);

private:
    std::string m_Preamble;
    std::vector<std::string> m_Blocks;
    std::string m_LineEnd = "\r\n";
    bool m_IsUtf8 = true;
    bool m_LacksLastEnd = false;
};

}  // namespace HOST
