// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/base/files/detail/line_reader.h>
#include <marlin/base/files/settings_grammar.h>

#include <string>
#include <string_view>

namespace MARLINSUITE::detail {

/// How the reading of a settings file ended.
struct SettingsOutcome {
    enum KIND { DONE, BAD_HEADER, DUPLICATE_SECTION, READ_ERROR };
    KIND Kind = DONE;
    int Line = 0;      ///< The line of the bad header or second section, counted from 1.
    int Error = 0;     ///< The system's error number of a read error.
    std::string Name;  ///< Of the second section.

    /// An empty result when done. Otherwise the message, and as cause "path: line: reason".
    [[nodiscard]] ErrorString Result(const std::string& path) const;
};

/// Gives a sink the sections and keys of a settings file, in their order. The sink has
/// `bool BeginSection(name, comments)`, false for a name that it has already, and
/// `void AddKey(name, value, comments)` for the section begun last. After a bad header or a read
/// error the last section is incomplete.
template <class Sink>
[[nodiscard]] SettingsOutcome ReadSettings(LineReader& lines, Sink& sink) {
    SettingsGrammar grammar;
    SettingsOutcome outcome;
    std::string_view bytes;
    while (outcome.Kind == SettingsOutcome::DONE && lines.Next(bytes)) {
        const SettingsLine line = grammar.Take(bytes);
        outcome.Line = line.Number;
        if (line.Kind == SettingsLine::KEY || line.Kind == SettingsLine::COMMENT) {
            sink.AddKey(line.Name, line.Value, line.Comments);
        } else if (line.Kind == SettingsLine::HEADER && line.Name.empty()) {
            outcome.Kind = SettingsOutcome::BAD_HEADER;
        } else if (line.Kind == SettingsLine::HEADER &&
                   !sink.BeginSection(line.Name, line.Comments)) {
            outcome.Kind = SettingsOutcome::DUPLICATE_SECTION;
            outcome.Name = line.Name;
        }
    }
    if (lines.Error() != 0) {
        outcome.Kind = SettingsOutcome::READ_ERROR;
        outcome.Error = lines.Error();
    }
    return outcome;
}

template <class Sink>
[[nodiscard]] SettingsOutcome ReadSettingsFile(const std::string& path, Sink& sink) {
    LineReader lines;
    if (const int error = lines.Open(path); error != 0) {
        SettingsOutcome outcome;
        outcome.Kind = SettingsOutcome::READ_ERROR;
        outcome.Error = error;
        return outcome;
    }
    return ReadSettings(lines, sink);
}

}  // namespace MARLINSUITE::detail
