// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>

#include <string>
#include <string_view>

namespace HOST {

/// What the program tells its caller.
enum EXIT : int {
    DONE = 0,
    FOUND = 1,     ///< Something is wrong with what was looked at, or the work was refused.
    UNUSABLE = 2,  ///< Wrong usage, input that cannot be read, output that cannot be written.
};

/// What a command prints, written when it is done: a command that fails prints no half table.
struct Output {
    std::string Text;        ///< UTF-8.
    bool Json = false;       ///< A program reads it.
    bool HasColors = false;  ///< A terminal shows it.
};

/// Control characters written out as "\x1B", so that no file steers the terminal.
[[nodiscard]] std::string Printable(std::string_view utf8);
/// A text of a file, in its single-byte characters, for the eye.
[[nodiscard]] std::string Shown(std::string_view text);
/// The bytes as UTF-8: unchanged if they are, otherwise taken for single-byte characters.
[[nodiscard]] std::string AsUtf8(std::string_view bytes);

/// Writes "marlin: message" to standard error.
void Report(const std::string& message);
/// The same for a failure, by its cause where it has one.
void Report(const ErrorString& failure);

/// Report and give the exit code.
[[nodiscard]] int Unusable(const ErrorString& failure);
[[nodiscard]] int Refused(const std::string& message);

/// Writes the output to standard output; `code`, or `UNUSABLE` when it cannot be written.
[[nodiscard]] int Finish(const Output& output, int code);

}  // namespace HOST
