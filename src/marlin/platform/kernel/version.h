// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

inline constexpr unsigned long VER_PLATFORM_WIN32_WINDOWS = 1;
inline constexpr unsigned long VER_PLATFORM_WIN32_NT = 2;

/// What the platform tells of itself. The caller sets the size.
struct OSVERSIONINFOA {
    unsigned long dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
    unsigned long dwMajorVersion = 0;
    unsigned long dwMinorVersion = 0;
    unsigned long dwBuildNumber = 0;
    unsigned long dwPlatformId = 0;
    char szCSDVersion[128] = {};
};

/// Platform 2, whose drawing takes 32-bit coordinates, unless the environment variable
/// MARLIN_PLATFORM_ID names another, so that a host can be tried on it. Returns 0, and fills
/// nothing, for null or a size that is not that of the structure; 1 else.
MARLIN_API int GetVersionExA(OSVERSIONINFOA* information) noexcept;
