// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <string>
#include <string_view>

// Texts are bytes; case is that of the ASCII letters, whatever the locale.

/// Equality ignoring case.
[[nodiscard]] MARLIN_API bool icompare(std::string_view a, std::string_view b) noexcept;

/// A strict order of texts ignoring case: of two texts that are not equal to `icompare` exactly
/// one is smaller.
[[nodiscard]] MARLIN_API bool Smaller(std::string_view a, std::string_view b) noexcept;
[[nodiscard]] MARLIN_API bool Greater(std::string_view a, std::string_view b) noexcept;

/// Removes the given characters from both ends, in place.
MARLIN_API void trim(std::string& text, std::string characters);

/// The leading number of a text after white space; 0 when there is none. Numbers beyond the
/// range of an `int` give its nearest limit.
[[nodiscard]] MARLIN_API int atoi(const std::string& text) noexcept;
/// The same for a decimal number; beyond the range of a `double` an infinity.
[[nodiscard]] MARLIN_API double atof(const std::string& text) noexcept;

/// Appends the value's text: integers in decimal, a bool as 1 or 0, a `float` in the shortest
/// form that reads back to the same value.
MARLIN_API CString& operator<<(CString& text, bool value);
MARLIN_API CString& operator<<(CString& text, int value);
MARLIN_API CString& operator<<(CString& text, unsigned long value);
MARLIN_API CString& operator<<(CString& text, float value);
/// Appends the text itself; a null pointer appends nothing.
MARLIN_API CString& operator<<(CString& text, const char* value);
MARLIN_API CString& operator<<(CString& text, const CString& value);
