// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/base/files/detail/line_reader.h>

#include <string>
#include <string_view>

/// The grammar of settings files, shared by all that reads them.
namespace MARLINSUITE {

[[nodiscard]] constexpr bool IsSettingsBlank(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

[[nodiscard]] constexpr std::string_view TrimmedSettingsText(std::string_view text) noexcept {
    while (!text.empty() && IsSettingsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsSettingsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// A trimmed line taken apart. A header has a name between "[" and the first "]", and the
/// comment behind a ";" after it; any other line is a key line.
struct SettingsLine {
    bool IsHeader = false;
    std::string_view Name;
    std::string_view Value;
    std::string_view Comments;

    [[nodiscard]] static SettingsLine Of(std::string_view line) noexcept {
        if (line.front() == '[') {
            if (const auto end = line.find(']'); end != std::string_view::npos) {
                return Header(line, end);
            }
        }
        return Key(line);
    }

private:
    [[nodiscard]] static SettingsLine Header(std::string_view line, std::size_t end) noexcept {
        SettingsLine parts;
        parts.IsHeader = true;
        parts.Name = line.substr(1, end - 1);
        if (const auto mark = line.find(';', end); mark != std::string_view::npos) {
            parts.Comments = line.substr(mark + 1);
        }
        return parts;
    }

    [[nodiscard]] static SettingsLine Key(std::string_view line) noexcept {
        SettingsLine parts;
        std::string_view entry = line;
        if (const auto mark = line.find(';'); mark != std::string_view::npos) {
            parts.Comments = line.substr(mark + 1);
            entry = line.substr(0, mark);
        }
        const auto equals = entry.find('=');
        parts.Name = TrimmedSettingsText(entry.substr(0, equals));
        if (equals != std::string_view::npos) {
            parts.Value = TrimmedSettingsText(entry.substr(equals + 1));
        }
        return parts;
    }
};

/// What `ReadSettings` came to.
struct SettingsOutcome {
    enum KIND { DONE, BAD_HEADER, DUPLICATE_SECTION, READ_ERROR };
    KIND Kind = DONE;
    int Line = 0;      ///< The line of the bad header or second section, counted from 1.
    int Error = 0;     ///< The system's error number of a read error.
    std::string Name;  ///< Of the second section.

    /// An empty result when done. Otherwise the message, and as cause "path: line: reason".
    [[nodiscard]] ErrorString Result(const std::string& path) const;
};

/// Feeds a sink with what the lines hold, in their order. The sink has
/// `bool BeginSection(name, comments)`, false for a name that it has already,
/// `void AddKey(name, value, comments)` for the section begun last, and `void DropSection()`,
/// which takes that section back because an error followed it.
template <class Sink>
SettingsOutcome ReadSettings(LineReader& lines, Sink& sink) {
    SettingsOutcome outcome;
    bool inSection = false;
    std::string_view line;
    while (lines.Next(line)) {
        ++outcome.Line;
        line = TrimmedSettingsText(line);
        if (line.empty()) {
            continue;
        }
        const SettingsLine parts = SettingsLine::Of(line);
        if (!parts.IsHeader) {
            if (inSection) {
                sink.AddKey(parts.Name, parts.Value, parts.Comments);
            }
            continue;
        }
        if (parts.Name.empty()) {
            outcome.Kind = SettingsOutcome::BAD_HEADER;
            if (inSection) {
                sink.DropSection();
            }
            return outcome;
        }
        if (!sink.BeginSection(parts.Name, parts.Comments)) {
            outcome.Kind = SettingsOutcome::DUPLICATE_SECTION;
            outcome.Name = parts.Name;
            return outcome;
        }
        inSection = true;
    }
    if (lines.Error() != 0) {
        outcome.Kind = SettingsOutcome::READ_ERROR;
        outcome.Error = lines.Error();
        if (inSection) {
            sink.DropSection();
        }
    }
    return outcome;
}

}  // namespace MARLINSUITE
