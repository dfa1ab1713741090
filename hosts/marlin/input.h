// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace HOST {

/// Larger text files are refused: they were not meant.
inline constexpr std::size_t LargestTextFile = 256U * 1024U * 1024U;

/// Reads a file whole. A failure names the file and the reason: the system's, or that the file
/// holds more than `limit` bytes, of which no more are read.
[[nodiscard]] ErrorString ReadInput(const std::string& path, std::size_t limit, std::string& bytes);

/// "path:line: cause"; "path: cause" for line 0.
[[nodiscard]] std::string AtLine(const std::string& path, int line, std::string_view cause);

/// An argument as a text of a file: UTF-8 becomes single-byte characters, other bytes are taken
/// for such already. False, with a reason, for a character that has no byte.
[[nodiscard]] ErrorString TextOfArgument(const std::string& argument, std::string& text);

}  // namespace HOST
