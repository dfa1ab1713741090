// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/kernel/version.h>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const GDIScaleFactor GDIScaleFactor::g_Factor;

GDIScaleFactor::GDIScaleFactor() noexcept {
    OSVERSIONINFOA version;
    // Other platforms than this have 16-bit coordinates.
    if (GetVersionExA(&version) == 0 || version.dwPlatformId != VER_PLATFORM_WIN32_NT) {
        m_Factor = 20.0;
        m_MaxCoord = 32767;
    }
}
