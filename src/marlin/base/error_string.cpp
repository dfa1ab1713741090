// SPDX-License-Identifier: MIT
#include <marlin/base/error_string.h>

#include <system_error>

namespace {

// Outlives the error: a `bool` has no destructor.
constinit thread_local bool isLastGone = false;

struct LastError {
    ErrorString Error;
    LastError() = default;
    LastError(const LastError&) = delete;
    LastError& operator=(const LastError&) = delete;
    ~LastError() { isLastGone = true; }
};

// Null once the thread has destroyed it: destructors of static objects run later and may fail too.
ErrorString* LastOfThisThread() {
    if (isLastGone) {
        return nullptr;
    }
    thread_local LastError last;
    return &last.Error;
}

}  // namespace

ErrorString::ErrorString(const char* message) : m_Text(message ? message : "") {
    Remember();
}

ErrorString::ErrorString(const std::string& message) : m_Text(message) {
    Remember();
}

ErrorString::ErrorString(bool success) : m_Text(success ? "" : "Operation failed.") {
    Remember();
}

ErrorString& ErrorString::SetCause(const std::string& cause) {
    m_Cause = cause;
    return Remember();
}

ErrorString& ErrorString::operator<<(const char* text) {
    m_Text += text ? text : "";
    return Remember();
}

ErrorString& ErrorString::operator<<(const std::string& text) {
    m_Text += text;
    return Remember();
}

ErrorString& ErrorString::operator<<(const CString& text) {
    m_Text += text.View();
    return Remember();
}

ErrorString ErrorString::LastError() {
    const ErrorString* const last = LastOfThisThread();
    return last ? *last : ErrorString();
}

void ErrorString::RecordFailure(const std::string& cause) {
    ErrorString failure(false);
    failure.SetCause(cause);
}

void ErrorString::RecordSuccess() noexcept {
    if (ErrorString* const last = LastOfThisThread()) {
        *last = ErrorString();
    }
}

ErrorString& ErrorString::Remember() {
    ErrorString* const last = m_Text.empty() ? nullptr : LastOfThisThread();
    if (last && last != this) {
        *last = *this;
    }
    return *this;
}

std::string MARLINSUITE::SystemReason(const std::string& name, int error) {
    return name + ": " + std::generic_category().message(error);
}
