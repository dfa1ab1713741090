// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace MARLINSUITE::detail {

/// Appends sections to the text of a settings file, the inverse of `ReadSettings`: a header line,
/// key lines in columns, an empty line at the end, each line ended by carriage return and line
/// feed.
class SettingsWriter {
public:
    /// The text must outlive the writer.
    explicit SettingsWriter(std::string& text) noexcept : m_Text(text) {}

    /// The sizes are those of the longest name and value among the keys that follow.
    void BeginSection(std::string_view name, std::string_view comments, std::size_t longestName,
                      std::size_t longestValue) {
        m_NameWidth = longestName + 1;
        m_ValueWidth = longestValue + 1;
        m_Text.append("[").append(name).append("]");
        if (!comments.empty()) {
            m_Text.append(" ;").append(comments);
        }
        m_Text.append(lineEnd);
    }

    /// Writes the comment alone of a key without a name.
    void AddKey(std::string_view name, std::string_view value, std::string_view comments) {
        if (!name.empty()) {
            m_Text.append(name).append(m_NameWidth - name.size(), ' ').append("= ").append(value);
            if (!comments.empty()) {
                m_Text.append(m_ValueWidth - value.size(), ' ');
            }
        }
        if (!comments.empty()) {
            m_Text.append(";").append(comments);
        }
        m_Text.append(lineEnd);
    }

    void EndSection() { m_Text.append(lineEnd); }

private:
    static constexpr std::string_view lineEnd = "\r\n";

    std::string& m_Text;
    std::size_t m_NameWidth = 0;
    std::size_t m_ValueWidth = 0;
};

}  // namespace MARLINSUITE::detail
