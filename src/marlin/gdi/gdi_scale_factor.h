// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// How many logical units make one text unit in all text measuring, and the largest device
/// coordinate that the platform's drawing takes. Set when the library is loaded, from then on
/// constant: 1000 and 2147483647, or 20 and 32767 on a platform with 16-bit coordinates.
class MARLIN_API GDIScaleFactor {
public:
    [[nodiscard]] static double Get() noexcept { return g_Factor.m_Factor; }
    [[nodiscard]] static unsigned int MaxCoord() noexcept { return g_Factor.m_MaxCoord; }

private:
    GDIScaleFactor() noexcept;

    double m_Factor = 1000.0;
    unsigned int m_MaxCoord = 0x7FFFFFFF;

    static const GDIScaleFactor g_Factor;
};
