// SPDX-License-Identifier: MIT
#pragma once

#include "output/output.h"
#include <marlin/platform/kernel/file_lock.h>

#include <cstddef>
#include <string>

/// The files that commands name, where "-" is standard input or standard output.
namespace HOST {

/// The program refuses larger text files: somebody has mistaken the file.
inline constexpr std::size_t LargestTextFile = 256U * 1024U * 1024U;

[[nodiscard]] bool IsStandard(const std::string& path);

/// Reads a text file, of at most `LargestTextFile` bytes.
[[nodiscard]] ErrorString ReadText(const std::string& path, std::string& text);
/// Replaces a file, or prints the bytes. Fails when that is not possible.
void WriteFile(const std::string& path, const std::string& bytes, Output& output);

/// Fails when another program keeps the file locked for ten seconds.
void LockForChange(const std::string& path, PLATFORM::FileLock& lock);
/// Fails when both names lead to one file, which the output would destroy.
void RequireOther(const std::string& input, const std::string& output);

}  // namespace HOST
