// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <compare>
#include <string>
#include <string_view>
#include <type_traits>

/// The framework's string: a value of bytes, of which `PLATFORM::ToUtf8` makes characters. A null
/// pointer reads as an empty text. Positions count from 0 and -1 means not found; counts and
/// positions outside the text are cut to it.
/// @code
/// CString name = "chart.cdf";
/// const int dot = name.ReverseFind('.');
/// assert(dot == 5 && name.Left(dot) == "chart");
/// name.Format("%s (%d)", name.Mid(dot + 1).GetString(), 2);
/// assert(name == "cdf (2)");
/// @endcode
class MARLIN_API CString {
public:
    CString() noexcept = default;
    CString(const char* text);
    /// The first `length` characters of `text`, null characters included.
    CString(const char* text, int length);
    explicit CString(char character, int repeat = 1);
    explicit CString(std::string_view text) : m_Text(text) {}

    CString& operator=(const char* text);

    [[nodiscard]] operator const char*() const noexcept { return m_Text.c_str(); }
    [[nodiscard]] const char* GetString() const noexcept { return m_Text.c_str(); }
    [[nodiscard]] std::string_view View() const noexcept { return m_Text; }

    [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(m_Text.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_Text.empty(); }
    void Empty() noexcept { m_Text.clear(); }

    /// The position must lie in 0 to `GetLength()`; at the length there is a null character.
    [[nodiscard]] char GetAt(int position) const noexcept;
    [[nodiscard]] char operator[](int position) const noexcept { return GetAt(position); }
    void SetAt(int position, char character) noexcept;

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char character);

    [[nodiscard]] CString Left(int count) const;
    [[nodiscard]] CString Right(int count) const;
    [[nodiscard]] CString Mid(int first) const;
    [[nodiscard]] CString Mid(int first, int count) const;

    [[nodiscard]] int Find(char character, int start = 0) const noexcept;
    [[nodiscard]] int Find(const char* text, int start = 0) const noexcept;
    [[nodiscard]] int ReverseFind(char character) const noexcept;

    /// Below, at or above 0 when this text comes before the other, equals it or comes after it,
    /// compared as unsigned bytes.
    [[nodiscard]] int Compare(const char* other) const noexcept;
    /// The same with the ASCII letters taken as lower case.
    [[nodiscard]] int CompareNoCase(const char* other) const noexcept;

    CString& MakeUpper() noexcept;
    CString& MakeLower() noexcept;
    /// Removes spaces, tabs and line ends from both ends.
    CString& Trim();
    /// Replaces every occurrence and returns how many there were.
    int Replace(char from, char to) noexcept;
    int Replace(const char* from, const char* to);

    /// As `printf` in the locale "C" into this text; the arguments may be pieces of it.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));
    /// An object, a `CString` too, has no place among the arguments: `GetString()` has one.
    template <class... Arguments>
    requires(std::is_class_v<Arguments> || ...) void Format(const char* format,
                                                            const Arguments&... arguments) = delete;
    /// Loads a text of the resource string table; false, and an empty text, when it has none
    /// of that number.
    bool LoadString(unsigned int id);

    friend bool operator==(const CString& a, const CString& b) noexcept {
        return a.m_Text == b.m_Text;
    }
    friend bool operator==(const CString& a, const char* b) noexcept { return a.Compare(b) == 0; }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) noexcept {
        return a.m_Text.compare(b.m_Text) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CString& a, const char* b) noexcept {
        return a.Compare(b) <=> 0;
    }
    friend CString operator+(CString a, const CString& b) { return a += b; }
    friend CString operator+(CString a, const char* b) { return a += b; }
    friend CString operator+(const char* a, const CString& b) { return CString(a) += b; }
    friend CString operator+(CString a, char b) { return a += b; }
    friend CString operator+(char a, const CString& b) { return CString(a) += b; }

private:
    std::string m_Text;
};
