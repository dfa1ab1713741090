// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// Whether a library of this suite may be used: the version, packed one byte each from the
/// major number (bits 24 to 31) down, must have the major number 4. The texts, the name of
/// its main source file and its build stamp, identify it and decide nothing.
[[nodiscard]] MARLIN_API bool CheckDllVersion(unsigned int version, const char* sourceFile,
                                              const char* buildStamp) noexcept;
