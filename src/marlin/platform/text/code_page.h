// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>
#include <string_view>

/// The single-byte character set of all texts, Windows-1252, to and from Unicode. Its five bytes
/// without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D) are the control characters of the same
/// number, so that every byte becomes a code point and comes back.
namespace PLATFORM {

[[nodiscard]] MARLIN_API char32_t CodePointOf(unsigned char byte) noexcept;

[[nodiscard]] MARLIN_API std::string ToUtf8(std::string_view text);
/// A character that has no byte becomes '?', and so does each byte that is not part of valid
/// UTF-8.
[[nodiscard]] MARLIN_API std::string FromUtf8(std::string_view utf8);

/// True when the bytes are valid UTF-8: no overlong form, no surrogate, nothing above 0x10FFFF.
[[nodiscard]] MARLIN_API bool IsUtf8(std::string_view bytes) noexcept;

}  // namespace PLATFORM
