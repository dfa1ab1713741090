// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace HOST {

/// The exit codes of the program.
enum EXIT : int {
    DONE = 0,
    FOUND = 1,     ///< Something is wrong with what was looked at, or the work was refused.
    UNUSABLE = 2,  ///< Wrong usage, input that cannot be read, output that cannot be written.
};

/// Ends a command that cannot go on: the program reports the message and exits with the code. A
/// command throws before it changes any file.
class Failure : public std::runtime_error {
public:
    Failure(EXIT code, const std::string& message) : std::runtime_error(message), m_Code(code) {}

    [[nodiscard]] EXIT Code() const noexcept { return m_Code; }

private:
    EXIT m_Code;
};

/// The reason for a person: the cause where the failure has one, which says more.
[[nodiscard]] std::string ReasonOf(const ErrorString& failure);

/// Throws `UNUSABLE`.
[[noreturn]] void Fail(const std::string& message);
/// Throws `UNUSABLE` for the value of an option; `forms` are the values that it takes.
[[noreturn]] void FailOption(std::string_view option, const std::string& value,
                             std::string_view forms);
/// Throws `FOUND`.
[[noreturn]] void Refuse(const std::string& message);
/// Throws `UNUSABLE` unless the outcome is a success.
void Require(const ErrorString& outcome);

}  // namespace HOST
