// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

inline constexpr unsigned long VER_PLATFORM_WIN32_WINDOWS =
    1;                                                     ///< a platform with 16-bit coordinates
inline constexpr unsigned long VER_PLATFORM_WIN32_NT = 2;  ///< a platform with 32-bit coordinates

/// The version of the platform. The caller sets the size.
struct OSVERSIONINFOA {
    unsigned long dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);  ///< in bytes
    unsigned long dwMajorVersion = 0;                            ///< of the platform
    unsigned long dwMinorVersion = 0;                            ///< of the platform
    unsigned long dwBuildNumber = 0;                             ///< of the platform
    unsigned long dwPlatformId = 0;                              ///< one of the two platforms above
    char szCSDVersion[128] = {};  ///< the name of a service pack; empty here
};

/// Reports platform 2, whose drawing takes 32-bit coordinates. Returns 0, and fills nothing, for
/// null or a size that is not that of the structure; 1 otherwise.
MARLIN_API int GetVersionExA(OSVERSIONINFOA* information) noexcept;
