// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstdio>
#include <string>
#include <vector>

/// The running program and its surroundings.
namespace PLATFORM {

/// True when the stream leads to a terminal, and not to a file or a pipe.
[[nodiscard]] MARLIN_API bool IsTerminal(std::FILE* stream) noexcept;

/// The folder of the running program's file, links followed, without an ending "/"; empty when the
/// system does not know it.
[[nodiscard]] MARLIN_API std::string ProgramFolder();

/// True when the file exists and this process may run it as a program.
[[nodiscard]] MARLIN_API bool IsProgram(const std::string& path) noexcept;

/// Makes this process another program: does not return on success, and returns the system's error
/// number on failure. A name without "/" is looked for in the folders of the variable PATH.
[[nodiscard]] MARLIN_API int RunInstead(const std::string& program,
                                        const std::vector<std::string>& arguments);

}  // namespace PLATFORM
