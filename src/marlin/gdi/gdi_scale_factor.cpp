// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/kernel/version.h>

[[gnu::init_priority(101)]] const GDIScaleFactor GDIScaleFactor::g_Factor;

GDIScaleFactor::GDIScaleFactor() noexcept {
    OSVERSIONINFOA version;
    if (GetVersionExA(&version) == 0 || version.dwPlatformId != VER_PLATFORM_WIN32_NT) {
        m_Factor = 20.0;
        m_MaxCoord = 32767;
    }
}
