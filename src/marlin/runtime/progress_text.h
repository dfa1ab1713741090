// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <mutex>
#include <string>
#include <string_view>

namespace MARLINSUITE {

/// A text that one thread sets while another one reads it, and that is never read half-written.
/// The reader has a copy of its own, which changes only when it is refreshed.
class MARLIN_API ProgressText {
public:
    ProgressText() = default;
    ProgressText(std::string_view text) : m_Text(text) {}
    ProgressText(const ProgressText& other) : m_Text(other.Get()) {}
    ~ProgressText() = default;

    /// A copy, for any thread.
    [[nodiscard]] std::string Get() const;
    [[nodiscard]] operator std::string() const { return Get(); }

    /// For the one reading thread: its copy, after bringing it up to date.
    [[nodiscard]] const std::string& Refreshed() const;

    ProgressText& operator=(const ProgressText& other) { return *this = other.Get(); }
    ProgressText& operator=(const std::string& text) { return *this = std::string_view(text); }
    ProgressText& operator=(const char* text) { return *this = std::string_view(text); }
    ProgressText& operator=(std::string_view text);
    ProgressText& operator+=(std::string_view text);
    void clear() { *this = std::string_view(); }

private:
    mutable std::mutex m_Lock;
    std::string m_Text;                 // guarded by the lock
    mutable std::string m_ReadersCopy;  // the reading thread's
};

}  // namespace MARLINSUITE
