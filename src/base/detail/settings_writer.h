// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace MARLINSUITE {

/// Writes the text of settings files, the inverse of `ReadSettings`: header lines, key lines
/// in columns, an empty line behind each section, line ends of carriage return and line feed.
class SettingsWriter {
public:
    explicit SettingsWriter(std::string& text) noexcept : m_Text(text) {}

    /// The longest name and value of the section that is written.
    void BeginSection(std::string_view name, std::string_view comments, std::size_t longestName,
                      std::size_t longestValue) {
        m_NameWidth = longestName + 1;
        m_ValueWidth = longestValue + 1;
        m_Text += '[';
        m_Text.append(name) += ']';
        if (!comments.empty()) {
            m_Text.append(" ;").append(comments);
        }
        m_Text.append(lineEnd);
    }

    /// A key without a name writes its comment alone.
    void AddKey(std::string_view name, std::string_view value, std::string_view comments) {
        if (!name.empty()) {
            AppendPadded(name, m_NameWidth);
            m_Text.append("= ");
            if (comments.empty()) {
                m_Text.append(value);
            } else {
                AppendPadded(value, m_ValueWidth);
            }
        }
        if (!comments.empty()) {
            m_Text += ';';
            m_Text.append(comments);
        }
        m_Text.append(lineEnd);
    }

    void EndSection() { m_Text.append(lineEnd); }

private:
    static constexpr std::string_view lineEnd = "\r\n";

    void AppendPadded(std::string_view text, std::size_t width) {
        m_Text.append(text).append(width - std::min(width, text.size()), ' ');
    }

    std::string& m_Text;
    std::size_t m_NameWidth = 0;
    std::size_t m_ValueWidth = 0;
};

}  // namespace MARLINSUITE
