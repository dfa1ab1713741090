// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/platform/kernel/version.h>

int GetVersionExA(OSVERSIONINFOA* information) noexcept {
    if (!information || information->dwOSVersionInfoSize != sizeof(OSVERSIONINFOA)) {
        return 0;
    }
    *information = OSVERSIONINFOA();
    // The version that goes with platform 2 where the contracts come from.
    information->dwMajorVersion = 5;
    information->dwMinorVersion = 1;
    information->dwPlatformId = PLATFORM::detail::PlatformId();
    return 1;
}
