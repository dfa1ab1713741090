// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace HOST {

/// Escapes control characters, as "\x1B", so that no file steers the terminal.
[[nodiscard]] std::string Printable(std::string_view utf8);
/// Printable UTF-8 of a file's text, which is in single-byte characters.
[[nodiscard]] std::string Shown(std::string_view text);
/// UTF-8 as it is; other bytes are taken for single-byte characters.
[[nodiscard]] std::string AsUtf8(std::string_view bytes);

[[nodiscard]] std::string NumberText(int value);
/// The shortest text that reads back to the same value.
[[nodiscard]] std::string NumberText(double value);
[[nodiscard]] std::string NumberText(float value);
/// Plain decimals, at most so many, without zeros at the end and without a negative zero.
[[nodiscard]] std::string PlainText(double value, int decimals);
/// "1 level", "2 levels".
[[nodiscard]] std::string CountText(std::size_t count, std::string_view unit);

/// "path:line: cause"; "path: cause" for line 0.
[[nodiscard]] std::string AtLine(const std::string& path, int line, std::string_view cause);

}  // namespace HOST
