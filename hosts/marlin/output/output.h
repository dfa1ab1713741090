// SPDX-License-Identifier: MIT
#pragma once

#include "failure.h"
#include "printable.h"

#include <string>

namespace HOST {

/// The text that a command prints. It is written when the command is done, so that one that fails
/// prints no half table.
struct Output {
    std::string Text;        ///< UTF-8.
    bool HasColors = false;  ///< For a terminal.
    bool IsFile = false;     ///< The text is the contents of a file.

    /// Appends a line on what was done; where the text is a file, standard error has it.
    void Say(const std::string& line);
};

/// Writes "marlin: message" to standard error.
void Report(const std::string& message);

/// Writes the output to standard output. Returns `code`, or `UNUSABLE` when it cannot be written.
[[nodiscard]] int Finish(const Output& output, int code);

}  // namespace HOST
