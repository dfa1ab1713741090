// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/files/detail/block_output.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace MARLINSUITE {

/// Writes the text of settings files, the inverse of `ReadSettings`: header lines, key lines
/// in columns, an empty line behind each section, line ends of carriage return and line feed.
class SettingsWriter {
public:
    explicit SettingsWriter(BlockOutput& output) noexcept : m_Output(output) {}

    /// The longest name and value of the section that is written.
    void BeginSection(std::string_view name, std::string_view comments, std::size_t longestName,
                      std::size_t longestValue) {
        m_NameWidth = longestName + 1;
        m_ValueWidth = longestValue + 1;
        char* at = m_Output.Room(name.size() + comments.size() + mostMarks);
        at = Copied(at, "[");
        at = Copied(at, name);
        at = Copied(at, "]");
        if (!comments.empty()) {
            at = Copied(at, " ;");
            at = Copied(at, comments);
        }
        m_Output.Take(Copied(at, lineEnd));
    }

    /// A key without a name writes its comment alone.
    void AddKey(std::string_view name, std::string_view value, std::string_view comments) {
        char* at =
            m_Output.Room(std::max(name.size(), m_NameWidth) +
                          std::max(value.size(), m_ValueWidth) + comments.size() + mostMarks);
        if (!name.empty()) {
            at = Padded(Copied(at, name), name.size(), m_NameWidth);
            at = Copied(at, "= ");
            at = Copied(at, value);
            if (!comments.empty()) {
                at = Padded(at, value.size(), m_ValueWidth);
            }
        }
        if (!comments.empty()) {
            at = Copied(at, ";");
            at = Copied(at, comments);
        }
        m_Output.Take(Copied(at, lineEnd));
    }

    void EndSection() { m_Output.Take(Copied(m_Output.Room(lineEnd.size()), lineEnd)); }

private:
    static constexpr std::string_view lineEnd = "\r\n";
    // Blanks are written so many at once, which needs no call.
    static constexpr std::size_t blanksAtOnce = 16;
    static constexpr std::size_t mostMarks = blanksAtOnce + 8;

    [[nodiscard]] static char* Copied(char* at, std::string_view text) noexcept {
        return std::copy_n(text.data(), text.size(), at);
    }

    [[nodiscard]] static char* Padded(char* at, std::size_t size, std::size_t width) noexcept {
        for (std::size_t written = size; written < width; written += blanksAtOnce) {
            std::memset(at + (written - size), ' ', blanksAtOnce);
        }
        return at + (width - std::min(width, size));
    }

    BlockOutput& m_Output;
    std::size_t m_NameWidth = 0;
    std::size_t m_ValueWidth = 0;
};

}  // namespace MARLINSUITE
