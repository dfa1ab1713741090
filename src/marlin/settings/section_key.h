// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/settings/hashed_string.h>

#include <cassert>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// The types whose values a settings key holds as text.
template <class T>
concept SettingsNumber = std::same_as<T, int> || std::same_as<T, bool> ||
    std::same_as<T, unsigned int> || std::same_as<T, long> || std::same_as<T, unsigned long> ||
    std::same_as<T, float> || std::same_as<T, double>;
template <class T>
concept SettingsValue = SettingsNumber<T> || std::same_as<T, std::string>;

/// One entry of a settings section: a name, a value held as text, and the comment of its line.
/// A key without a name is not valid: it is a comment line, or the result of a look-up that
/// found nothing. Pointers given to it must not be null; a literal null does not compile. A value.
///
/// `<<` replaces the whole value: integers in decimal, a bool as "1" or "0", decimal numbers in
/// fixed notation with six decimals, texts unchanged. `>>` reads the leading number of the text
/// after white space (a bool is 0 or 1); a text without a number, or with one that does not fit,
/// leaves the target unchanged. A `long` has 32 bits, as on the platform that the contracts come
/// from: a larger one must not be given, and leaves the value unchanged.
///
/// @code
/// SectionKey key("LineWidth", 0.5F, " in millimetres");
/// assert(key.GetValue() == "0.500000");
/// int count = 7;
/// key << "none" >> count;
/// assert(count == 7);
/// @endcode
class MARLIN_API SectionKey {
public:
    /// A key of that name with an empty value.
    SectionKey(const char* name) : m_Name(name) {}
    /// A key of that name with an empty value.
    SectionKey(const std::string& name) : m_Name(name) {}
    /// A key of that name, whose hash is known, with an empty value.
    explicit SectionKey(const HashedString& name) : m_Name(name) {}
    SectionKey(std::nullptr_t) = delete;
    template <class... Rest>
    SectionKey(std::nullptr_t, const Rest&...) = delete;
    /// A key with a value, written as `<<` does.
    template <SettingsValue T>
    SectionKey(const std::string& name, const T& value, const char* comments = "")
        : m_Name(name), m_Comments(comments) {
        *this << value;
    }
    /// A key with a text.
    SectionKey(const std::string& name, const char* value, const char* comments = "")
        : m_Name(name), m_Value(value), m_Comments(comments) {}
    SectionKey(const std::string&, std::nullptr_t, const char* = "") = delete;
    template <class T>
    SectionKey(const std::string&, const T&, std::nullptr_t) = delete;
    /// The parts as a settings file holds them.
    SectionKey(std::string_view name, std::string_view value, std::string_view comments)
        : m_Name(name), m_Value(value), m_Comments(comments) {}

    /// Empty for a key that is not valid.
    [[nodiscard]] const HashedString& GetName() const noexcept { return m_Name; }
    /// The text as a file holds it.
    [[nodiscard]] const std::string& GetValue() const noexcept { return m_Value; }
    /// What follows the first ";" of the line.
    [[nodiscard]] const std::string& GetComments() const noexcept { return m_Comments; }
    /// Whether the key has a name.
    [[nodiscard]] bool IsValid() const noexcept { return !m_Name.empty(); }

    /// Stores what is to follow the ";".
    void SetComments(const std::string& comments) { m_Comments = comments; }
    /// Stores what is to follow the ";".
    void SetComments(const char* comments) { m_Comments = comments; }
    void SetComments(std::nullptr_t) = delete;

    /// The text becomes the value.
    SectionKey& operator<<(const char* value) {
        m_Value = value;
        return *this;
    }
    SectionKey& operator<<(std::nullptr_t) = delete;
    /// The text becomes the value.
    SectionKey& operator<<(const CString& value) {
        m_Value = value.View();
        return *this;
    }
    /// The value becomes text.
    template <SettingsValue T>
    SectionKey& operator<<(const T& value) {
        if constexpr (std::same_as<T, std::string>) {
            m_Value = value;
        } else if constexpr (std::same_as<T, long>) {
            const bool fits = std::in_range<int>(value);
            assert(fits);
            return fits ? *this << static_cast<int>(value) : *this;
        } else {
            m_Value.clear();
            if constexpr (std::floating_point<T>) {
                MARLINSUITE::AppendFixed(m_Value, static_cast<double>(value), 6);
            } else {
                MARLINSUITE::AppendNumber(m_Value, value);
            }
        }
        return *this;
    }

    /// The whole text.
    const SectionKey& operator>>(std::string& value) const {
        value = m_Value;
        return *this;
    }
    /// The whole text.
    const SectionKey& operator>>(CString& value) const {
        value = CString(std::string_view(m_Value));
        return *this;
    }
    /// The leading number of the text, if it has one.
    template <SettingsNumber T>
    const SectionKey& operator>>(T& value) const {
        if constexpr (std::same_as<T, long>) {
            if (int number = 0; MARLINSUITE::ParseNumber(m_Value, number)) {
                value = number;
            }
        } else {
            static_cast<void>(MARLINSUITE::ParseNumber(m_Value, value));
        }
        return *this;
    }

    // Only the names are compared.
    bool operator==(const SectionKey& other) const noexcept { return m_Name == other.m_Name; }
    bool operator<(const SectionKey& other) const noexcept { return m_Name < other.m_Name; }
    bool operator>(const SectionKey& other) const noexcept { return m_Name > other.m_Name; }

private:
    HashedString m_Name;
    std::string m_Value;
    std::string m_Comments;
};
