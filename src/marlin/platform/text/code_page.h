// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <optional>
#include <string>
#include <string_view>

/// The characters of texts. A text is bytes, which nothing changes. Where it is measured, drawn or
/// shown, bytes that are valid UTF-8 as a whole are read as UTF-8, and all others as Windows-1252.
/// The five bytes of Windows-1252 without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D) are the
/// control characters of the same number, so that every byte has a code point and comes back.
///
/// @code
/// const std::string text = PLATFORM::ToUtf8("caf\xE9");  // in Windows-1252
/// assert(text == "caf\xC3\xA9" && PLATFORM::ToUtf8(text) == text);
/// @endcode
namespace PLATFORM {

/// The characters of a text, as UTF-8, for terminals, windows and all that draws.
[[nodiscard]] MARLIN_API std::string ToUtf8(std::string_view text);
/// Windows-1252. A character that has no byte becomes '?', and so does each byte that is not part
/// of valid UTF-8.
[[nodiscard]] MARLIN_API std::string FromUtf8(std::string_view utf8);

/// True when the bytes are valid UTF-8: no overlong form, no surrogate, nothing above 0x10FFFF.
[[nodiscard]] MARLIN_API bool IsUtf8(std::string_view bytes) noexcept;

/// Takes the first character off a text that is not empty. A byte that is not part of valid UTF-8
/// is the replacement character, 0xFFFD.
MARLIN_API char32_t TakeCodePoint(std::string_view& utf8) noexcept;

/// Of Windows-1252.
[[nodiscard]] MARLIN_API char32_t CodePointOf(unsigned char byte) noexcept;
[[nodiscard]] MARLIN_API std::optional<unsigned char> ByteOf(char32_t codePoint) noexcept;

}  // namespace PLATFORM
