// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

inline constexpr unsigned long VER_PLATFORM_WIN32_WINDOWS = 1;
inline constexpr unsigned long VER_PLATFORM_WIN32_NT = 2;

/// The version of the platform. The caller sets the size.
struct OSVERSIONINFOA {
    unsigned long dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
    unsigned long dwMajorVersion = 0;
    unsigned long dwMinorVersion = 0;
    unsigned long dwBuildNumber = 0;
    unsigned long dwPlatformId = 0;
    char szCSDVersion[128] = {};
};

/// Reports platform 2, whose drawing takes 32-bit coordinates. Returns 0, and fills nothing, for
/// null or a size that is not that of the structure; 1 otherwise.
MARLIN_API int GetVersionExA(OSVERSIONINFOA* information) noexcept;
