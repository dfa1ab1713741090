// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/base/files/detail/line_reader.h>
#include <marlin/base/files/settings_grammar.h>

#include <string>
#include <string_view>

namespace MARLINSUITE {

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
/// `bool BeginSection(name, comments)`, false for a name that it has already,
/// `void AddKey(name, value, comments)` for the section begun last, and `void DropSection()`,
/// which takes that section back because an error followed it.
template <class Sink>
SettingsOutcome ReadSettings(LineReader& lines, Sink& sink) {
    SettingsGrammar grammar;
    SettingsOutcome outcome;
    bool inSection = false;
    std::string_view bytes;
    while (outcome.Kind == SettingsOutcome::DONE && lines.Next(bytes)) {
        const SettingsLine line = grammar.Take(bytes);
        outcome.Line = line.Number;
        if (line.Kind == SettingsLine::KEY || line.Kind == SettingsLine::COMMENT) {
            sink.AddKey(line.Name, line.Value, line.Comments);
        } else if (line.Kind != SettingsLine::HEADER) {
            continue;
        } else if (line.Name.empty()) {
            outcome.Kind = SettingsOutcome::BAD_HEADER;
        } else if (sink.BeginSection(line.Name, line.Comments)) {
            inSection = true;
        } else {
            outcome.Kind = SettingsOutcome::DUPLICATE_SECTION;
            outcome.Name = line.Name;
        }
    }
    if (lines.Error() != 0) {
        outcome.Kind = SettingsOutcome::READ_ERROR;
        outcome.Error = lines.Error();
    }
    // The section before a repeated name is complete.
    const bool isCutShort =
        outcome.Kind == SettingsOutcome::BAD_HEADER || outcome.Kind == SettingsOutcome::READ_ERROR;
    if (inSection && isCutShort) {
        sink.DropSection();
    }
    return outcome;
}

}  // namespace MARLINSUITE
