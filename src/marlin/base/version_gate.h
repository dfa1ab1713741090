// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// True when a library of this suite may be used: when its version, packed one byte each from the
/// major number (bits 24 to 31) down, has the major number 4. The name of its main source file and
/// its build stamp identify the library and decide nothing.
[[nodiscard]] MARLIN_API bool CheckDllVersion(unsigned int version, const char* sourceFile,
                                              const char* buildStamp) noexcept;
