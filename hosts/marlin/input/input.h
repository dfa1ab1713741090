// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace HOST {

/// The program refuses larger text files: somebody has mistaken the file.
inline constexpr std::size_t LargestTextFile = 256U * 1024U * 1024U;

/// An argument as a text of a file: UTF-8 becomes single-byte characters, other bytes are taken
/// for such already. Fails for a character that has no byte.
[[nodiscard]] std::string TextOfArgument(const std::string& argument);

}  // namespace HOST
