// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace MARLINSUITE {

/// Without the spaces, tabs, line feeds and carriage returns at both ends.
[[nodiscard]] constexpr std::string_view TrimmedSettingsText(std::string_view text) noexcept {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The bytes with which some programs begin a text file in UTF-8. Readers skip them.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// One line of a settings file and its parts. All texts are views into the file's text.
struct SettingsLine {
    /// What a line is.
    enum KIND {
        BLANK,     ///< Nothing but white space.
        PREAMBLE,  ///< A line before the first header, which readers ignore.
        HEADER,    ///< "[Name]"; an empty name is an error.
        KEY,       ///< "Name = Value", where either may be missing.
        COMMENT,   ///< A line of a section that begins with ";".
    };

    KIND Kind = BLANK;
    int Number = 0;             ///< Counted from 1.
    std::size_t Offset = 0;     ///< Of `Bytes` from the start of the file.
    std::string_view Bytes;     ///< The whole line, with its line end, without a byte order mark.
    std::string_view Name;      ///< Of the section, as it is between the brackets, or of the key.
    std::string_view Value;     ///< Of the key. Savers drop that of a key without a name.
    std::string_view Comments;  ///< All that follows the first ";", without the line end.
    std::string_view Ignored;   ///< Between "]" and ";" of a header, trimmed; savers drop it.
};

/// The grammar of settings files (docs/formats/settings.md), one line at a time: readers give it
/// the lines in their order and take the parts. It checks nothing; an empty or repeated section
/// name is for the reader to refuse. A value; starts before the first line of a file.
///
/// @code
/// MARLINSUITE::ForEachSettingsLine("[General]\nColor = 255 ; blue\n",
///                                  [](const MARLINSUITE::SettingsLine& line) {
///     const bool isHeader = line.Kind == MARLINSUITE::SettingsLine::HEADER;
///     assert(line.Name == (isHeader ? "General" : "Color"));
///     return true;  // false would end the reading
/// });
/// @endcode
class SettingsGrammar {
public:
    /// `bytes` is the next line with its line end, which the last line may lack.
    [[nodiscard]] SettingsLine Take(std::string_view bytes) noexcept {
        if (m_Number == 0 && bytes.starts_with(byteOrderMark)) {
            bytes.remove_prefix(byteOrderMark.size());
            m_Offset = byteOrderMark.size();
        }
        SettingsLine line;
        line.Number = ++m_Number;
        line.Offset = m_Offset;
        line.Bytes = bytes;
        m_Offset += bytes.size();
        if (const std::string_view text = TrimmedSettingsText(bytes); !text.empty()) {
            TakeText(line, text);
        }
        return line;
    }

private:
    void TakeText(SettingsLine& line, std::string_view text) noexcept {
        const auto end = text.front() == '[' ? text.find(']') : std::string_view::npos;
        if (end != std::string_view::npos) {
            TakeHeader(line, text, end);
            m_InSection = true;
        } else if (m_InSection) {
            TakeKey(line, text);
        } else {
            line.Kind = SettingsLine::PREAMBLE;
        }
    }

    static void TakeHeader(SettingsLine& line, std::string_view text, std::size_t end) noexcept {
        line.Kind = SettingsLine::HEADER;
        line.Name = text.substr(1, end - 1);
        line.Ignored = TrimmedSettingsText(CutComments(line, text.substr(end + 1)));
    }

    static void TakeKey(SettingsLine& line, std::string_view text) noexcept {
        line.Kind = text.front() == ';' ? SettingsLine::COMMENT : SettingsLine::KEY;
        const std::string_view entry = CutComments(line, text);
        const auto equals = entry.find('=');
        line.Name = TrimmedSettingsText(entry.substr(0, equals));
        if (equals != std::string_view::npos) {
            line.Value = TrimmedSettingsText(entry.substr(equals + 1));
        }
    }

    // Moves the comment into the line and returns the text before it.
    static std::string_view CutComments(SettingsLine& line, std::string_view text) noexcept {
        const auto mark = text.find(';');
        if (mark != std::string_view::npos) {
            line.Comments = text.substr(mark + 1);
        }
        return text.substr(0, mark);
    }

    int m_Number = 0;
    std::size_t m_Offset = 0;
    bool m_InSection = false;
};

/// Calls `listener` with each line of a file's text until it returns false.
template <class Listener>
void ForEachSettingsLine(std::string_view text, Listener&& listener) {
    SettingsGrammar grammar;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        if (!listener(grammar.Take(text.substr(0, size)))) {
            return;
        }
        text.remove_prefix(size);
    }
}

}  // namespace MARLINSUITE
