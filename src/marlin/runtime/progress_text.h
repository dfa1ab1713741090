// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <compare>
#include <cstddef>
#include <map>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>

namespace MARLINSUITE {

/// A text that one thread sets while others read it, and that is never read half-written. The
/// thread that sets it uses it as a `std::string`; the others call `Get` or `Refreshed`. Each of
/// those has a copy of its own, which changes only when it is refreshed. Empty at first.
class MARLIN_API ProgressText {
public:
    static constexpr std::size_t npos = std::string::npos;  ///< As of `std::string`.

    ProgressText() = default;
    ProgressText(std::string_view text) : m_Text(text) {}
    ProgressText(const ProgressText& other) : m_Text(other.Get()) {}
    ~ProgressText() = default;

    /// A copy, for any thread.
    [[nodiscard]] std::string Get() const;
    [[nodiscard]] operator std::string() const { return Get(); }
    /// The calling thread's copy, after bringing it up to date.
    [[nodiscard]] const std::string& Refreshed() const;

    /// All below is for the thread that sets the text: what it can do with a `std::string`, but
    /// changes return the whole text.
    ProgressText& operator=(const ProgressText& other) { return *this = other.Get(); }
    template <class Text>
    requires std::is_assignable_v<std::string&, const Text&> ProgressText& operator=(
        const Text& text) {
        return Change([&] { m_Text = text; });
    }
    ProgressText& operator+=(const ProgressText& other) { return *this += other.Get(); }
    template <class Text>
    ProgressText& operator+=(const Text& text) {
        return Change([&] { m_Text += text; });
    }
    template <class Text>
    ProgressText& assign(const Text& text) {
        return *this = text;
    }
    ProgressText& assign(std::size_t count, char c) { return *this = std::string(count, c); }
    template <class Text>
    ProgressText& append(const Text& text) {
        return *this += text;
    }
    ProgressText& append(std::size_t count, char c) { return *this += std::string(count, c); }
    template <class Text>
    ProgressText& insert(std::size_t at, const Text& text) {
        return Change([&] { m_Text.insert(at, text); });
    }
    template <class Text>
    ProgressText& replace(std::size_t at, std::size_t count, const Text& text) {
        return Change([&] { m_Text.replace(at, count, text); });
    }
    ProgressText& erase(std::size_t at = 0, std::size_t count = npos) {
        return Change([&] { m_Text.erase(at, count); });
    }
    ProgressText& resize(std::size_t size, char added = '\0') {
        return Change([&] { m_Text.resize(size, added); });
    }
    ProgressText& push_back(char added) { return *this += added; }
    ProgressText& pop_back() {
        return Change([&] { m_Text.pop_back(); });
    }
    ProgressText& clear() { return erase(); }
    ProgressText& reserve(std::size_t size) {
        return Change([&] { m_Text.reserve(size); });
    }

    [[nodiscard]] std::size_t size() const noexcept { return m_Text.size(); }
    [[nodiscard]] std::size_t length() const noexcept { return m_Text.size(); }
    [[nodiscard]] bool empty() const noexcept { return m_Text.empty(); }
    [[nodiscard]] const char* c_str() const noexcept { return m_Text.c_str(); }
    [[nodiscard]] const char* data() const noexcept { return m_Text.data(); }
    [[nodiscard]] const char& operator[](std::size_t at) const noexcept { return m_Text[at]; }
    [[nodiscard]] const char& at(std::size_t at) const { return m_Text.at(at); }
    [[nodiscard]] const char& front() const noexcept { return m_Text.front(); }
    [[nodiscard]] const char& back() const noexcept { return m_Text.back(); }
    [[nodiscard]] auto begin() const noexcept { return m_Text.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_Text.end(); }
    [[nodiscard]] std::string substr(std::size_t at = 0, std::size_t count = npos) const {
        return m_Text.substr(at, count);
    }
    template <class Text>
    [[nodiscard]] int compare(const Text& text) const {
        return m_Text.compare(text);
    }
    template <class Text>
    [[nodiscard]] bool starts_with(const Text& text) const {
        return m_Text.starts_with(text);
    }
    template <class Text>
    [[nodiscard]] bool ends_with(const Text& text) const {
        return m_Text.ends_with(text);
    }
    template <class Text>
    [[nodiscard]] std::size_t find(const Text& text, std::size_t from = 0) const {
        return m_Text.find(text, from);
    }
    template <class Text>
    [[nodiscard]] std::size_t rfind(const Text& text, std::size_t from = npos) const {
        return m_Text.rfind(text, from);
    }

    friend bool operator==(const ProgressText& a, const ProgressText& b) {
        return a.m_Text == b.Get();
    }
    friend std::strong_ordering operator<=>(const ProgressText& a, const ProgressText& b) {
        return a.m_Text <=> b.Get();
    }
    template <class Text>
    friend bool operator==(const ProgressText& a, const Text& b) {
        return a.m_Text == b;
    }
    template <class Text>
    friend std::strong_ordering operator<=>(const ProgressText& a, const Text& b) {
        return a.m_Text <=> b;
    }
    friend std::string operator+(const ProgressText& a, const ProgressText& b) {
        return a + b.Get();
    }
    template <class Text>
    friend std::string operator+(const ProgressText& a, const Text& b) {
        return a.m_Text + b;
    }
    template <class Text>
    friend std::string operator+(const Text& a, const ProgressText& b) {
        return a + b.m_Text;
    }
    friend std::ostream& operator<<(std::ostream& stream, const ProgressText& text) {
        return stream << text.m_Text;
    }

private:
    template <class Action>
    ProgressText& Change(const Action& action) {
        const std::lock_guard lock(m_Lock);
        action();
        return *this;
    }

    mutable std::mutex m_Lock;
    std::string m_Text;  // guarded by the lock, but from the thread that alone changes it
    mutable std::map<std::thread::id, std::string> m_Copies;  // the readers'; guarded likewise
};

}  // namespace MARLINSUITE
