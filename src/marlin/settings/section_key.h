// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/settings/hashed_string.h>
#include <marlin/settings/rare_text.h>

#include <concepts>
#include <string>
#include <string_view>

/// The types whose values a settings key holds as text.
template <class T>
concept SettingsNumber =
    std::same_as<T, int> || std::same_as<T, bool> || std::same_as<T, unsigned int> ||
    std::same_as<T, unsigned long> || std::same_as<T, float> || std::same_as<T, double>;
template <class T>
concept SettingsValue = SettingsNumber<T> || std::same_as<T, std::string>;

/// One entry of a settings section: a name, a value held as text, and the comment of its line.
/// A key without a name is not valid: it is a comment line, or what a look-up of a missing key
/// yields. Pointers given to it must not be null.
///
/// Values go in with `<<`, each replacing the whole value: integers in decimal, a bool as "1" or
/// "0", decimal numbers in fixed notation with six decimals, texts unchanged. They come out with
/// `>>`: the leading number of the text after white space (a bool is 0 or 1); a value without
/// one, or with one that does not fit, leaves the target as it was. So a record that keeps its
/// defaults before it reads keeps them for every key that is missing or unreadable.
class MARLIN_API SectionKey {
public:
    SectionKey(const char* name) : m_Name(name) {}
    SectionKey(const std::string& name) : m_Name(name) {}
    template <SettingsValue T>
    SectionKey(const std::string& name, const T& value, const char* comments = "")
        : m_Name(name), m_Comments(comments) {
        *this << value;
    }
    SectionKey(const std::string& name, const char* value, const char* comments = "")
        : m_Name(name), m_Value(value), m_Comments(comments) {}
    /// The parts as they stand in a settings file: views alone, so that a name made before goes
    /// with any other value too.
    template <std::same_as<std::string_view> View>
    SectionKey(const HashedString& name, View value, View comments)
        : m_Name(name), m_Value(value), m_Comments(comments) {}

    [[nodiscard]] const HashedString& GetName() const noexcept { return m_Name; }
    [[nodiscard]] const std::string& GetValue() const noexcept { return m_Value; }
    [[nodiscard]] const std::string& GetComments() const noexcept { return m_Comments.Get(); }
    [[nodiscard]] bool IsValid() const noexcept { return !m_Name.empty(); }

    void SetComments(const std::string& comments) { m_Comments.Set(comments); }
    void SetComments(const char* comments) { m_Comments.Set(comments); }

    SectionKey& operator<<(const char* value) {
        m_Value = value;
        return *this;
    }
    SectionKey& operator<<(const CString& value) {
        m_Value = value.View();
        return *this;
    }
    template <SettingsValue T>
    SectionKey& operator<<(const T& value) {
        if constexpr (std::same_as<T, std::string>) {
            m_Value = value;
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

    const SectionKey& operator>>(std::string& value) const {
        value = m_Value;
        return *this;
    }
    const SectionKey& operator>>(CString& value) const {
        value = CString(std::string_view(m_Value));
        return *this;
    }
    template <SettingsNumber T>
    const SectionKey& operator>>(T& value) const {
        static_cast<void>(MARLINSUITE::ParseNumber(m_Value, value));
        return *this;
    }

    // Names alone take part.
    bool operator==(const SectionKey& other) const noexcept { return m_Name == other.m_Name; }
    bool operator<(const SectionKey& other) const noexcept { return m_Name < other.m_Name; }
    bool operator>(const SectionKey& other) const noexcept { return m_Name > other.m_Name; }

private:
    HashedString m_Name;
    std::string m_Value;
    RareText m_Comments;
};
