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
};

/// Writes "marlin: message" to standard error.
void Report(const std::string& message);

/// Writes the output to standard output. Returns `code`, or `UNUSABLE` when it cannot be written.
[[nodiscard]] int Finish(const Output& output, int code);

}  // namespace HOST
