// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/export.h>

#include <optional>
#include <string>
#include <string_view>

/// Windows-1252, the character set of the library's texts. Its five unused bytes stand for the
/// control characters of the same numbers, so every byte has a code point of its own.
namespace PLATFORM {

[[nodiscard]] MARLIN_API char32_t CodePoint(char byte) noexcept;
[[nodiscard]] MARLIN_API std::string ToUtf8(std::string_view text);
/// Nothing for a text that is not UTF-8 or holds a character of no byte.
[[nodiscard]] MARLIN_API std::optional<std::string> FromUtf8(std::string_view text);

}  // namespace PLATFORM
