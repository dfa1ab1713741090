// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>
#include <string_view>

/// Numbers to text and back, alike in every locale. No other place of the library converts them.
/// @code
/// double depth = 0.0;
/// const bool isNumber = MARLINSUITE::ParseNumber(" 12.5 m", depth);
/// assert(isNumber && depth == 12.5);
/// const bool isWhole = MARLINSUITE::ParseWhole("12.5 m", depth);
/// assert(!isWhole);
/// std::string text = "Depth ";
/// MARLINSUITE::AppendFixed(text, depth, 2);
/// assert(text == "Depth 12.50");
/// @endcode
namespace MARLINSUITE {

/// Reads the longest prefix of the text, after white space, that forms a value of the type and
/// ignores the rest. False, and the target unchanged, when there is none or the number does
/// not fit. Integers: an optional sign ("-" for `int` alone) and decimal digits; `unsigned
/// long` ends at 4294967295 as on the 32-bit platform that the contracts come from. A bool is
/// an integer 0 or 1. Decimal numbers: digits with an optional fraction and exponent, rounded
/// to the nearest value; numbers too small for the type become 0. The types are `int`, `unsigned
/// int`, `unsigned long`, `bool`, `float` and `double`.
template <class T>
MARLIN_API bool ParseNumber(std::string_view text, T& value) noexcept;

/// Reads a text that is one value of the type and nothing else, but for white space at its ends.
/// False, and the target unchanged, for any other.
template <class T>
MARLIN_API bool ParseWhole(std::string_view text, T& value) noexcept;

/// Appends an integer in decimal, an `unsigned long` as its low 32 bits, a bool as 1 or 0.
MARLIN_API void AppendNumber(std::string& text, int value);
MARLIN_API void AppendNumber(std::string& text, unsigned int value);
MARLIN_API void AppendNumber(std::string& text, unsigned long value);
MARLIN_API void AppendNumber(std::string& text, bool value);

/// Appends fixed-point notation with exactly that many decimals (0 or more; negative counts
/// as 0), correctly rounded, halves to even. "inf", "-inf" and "nan" for what is not finite.
MARLIN_API void AppendFixed(std::string& text, double value, int decimals);
/// Appends the shortest text that reads back to the same value.
MARLIN_API void AppendShortest(std::string& text, float value);
MARLIN_API void AppendShortest(std::string& text, double value);
/// Appends general notation with that many significant digits, 1 to 17, as a stream does.
MARLIN_API void AppendGeneral(std::string& text, double value, int digits = 6);

}  // namespace MARLINSUITE
