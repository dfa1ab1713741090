// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <string>

/// The result of an operation that can fail: one message for people, empty on success, which is
/// also the default. Beside the message it may carry a cause, the system's own reason ("name: No
/// space left on device"), for operations whose message is fixed. A value.
/// @code
/// ErrorString error;
/// assert(error.Empty());
/// error << "Cannot read " << std::string("a.ini");
/// assert(error.Text() == "Cannot read a.ini");
/// assert(ErrorString::LastError() == error);
/// @endcode
// The visibility of `MARLIN_API`, in the one form that compilers take together with another.
class [[nodiscard, gnu::visibility("default")]] ErrorString {
public:
    ErrorString() = default;
    /// A failure with that message; a null pointer or an empty text is a success.
    ErrorString(const char* message);
    ErrorString(const std::string& message);
    /// `true` is success; `false` a failure that says "Operation failed.".
    explicit ErrorString(bool success);

    [[nodiscard]] const std::string& Text() const noexcept {
        return m_Text;
    }
    [[nodiscard]] bool Empty() const noexcept {
        return m_Text.empty();
    }

    [[nodiscard]] const std::string& Cause() const noexcept {
        return m_Cause;
    }
    ErrorString& SetCause(const std::string& cause);

    /// Appends to the message; text appended to a success makes it a failure.
    ErrorString& operator<<(const char* text);
    ErrorString& operator<<(const std::string& text);
    ErrorString& operator<<(const CString& text);

    /// The failure that this thread made or appended to most recently; a success when there
    /// was none. Copying an error does not make one.
    [[nodiscard]] static ErrorString LastError();
    /// Records a failure, with a cause, for an operation that returns nothing; a host finds it by
    /// `LastError`.
    static void RecordFailure(const std::string& cause);
    /// Makes `LastError` a success when such an operation is one, since it reports nothing else.
    static void RecordSuccess() noexcept;

    friend bool operator==(const ErrorString& a, const ErrorString& b) noexcept = default;

private:
    ErrorString& Remember();

    std::string m_Text;
    std::string m_Cause;
};

namespace MARLINSUITE {

/// "name: reason", with the system's text for its error number: "a.ini: Permission denied".
[[nodiscard]] MARLIN_API std::string SystemReason(const std::string& name, int error);

}  // namespace MARLINSUITE
