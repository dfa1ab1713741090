// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// The number of logical units per text unit in all text measuring, and the largest device
/// coordinate that the platform can draw. Set when the library is loaded and constant after that:
/// 1000 and 2147483647, or 20 and 32767 on a platform with 16-bit coordinates.
/// @code
/// const double textUnits = 3690 / GDIScaleFactor::Get();  // a height in logical units
/// assert(textUnits == 3.69);
/// @endcode
class MARLIN_API GDIScaleFactor {
public:
    /// Logical units per text unit: 1000 or 20.
    [[nodiscard]] static double Get() noexcept { return g_Factor.m_Factor; }
    /// The largest device coordinate.
    [[nodiscard]] static unsigned int MaxCoord() noexcept { return g_Factor.m_MaxCoord; }

private:
    GDIScaleFactor() noexcept;

    double m_Factor = 1000.0;
    unsigned int m_MaxCoord = 0x7FFFFFFF;

    static const GDIScaleFactor g_Factor;
};
