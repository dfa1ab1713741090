// SPDX-License-Identifier: MIT
#include <marlin/base/error_string.h>

namespace {

ErrorString& LastOfThisThread() {
    thread_local ErrorString last;
    return last;
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
    return LastOfThisThread();
}

ErrorString& ErrorString::Remember() {
    if (!m_Text.empty() && this != &LastOfThisThread()) {
        LastOfThisThread() = *this;
    }
    return *this;
}
