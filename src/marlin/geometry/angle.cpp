// SPDX-License-Identifier: MIT
#include <marlin/geometry/angle.h>

double Angle::Remainder(double degrees) noexcept {
    const double remainder = std::fmod(degrees, 360.0);
    if (remainder == 0) {
        // A negative zero would show in texts.
        return 0;
    }
    return remainder < 0 ? remainder + 360.0 : remainder;
}

int Angle::Quadrant() const noexcept {
    return std::isnan(m_Degrees) ? 0 : static_cast<int>(m_Degrees / 90.0 + 1.0);
}

Angle Angle::Difference(const Angle& other) const noexcept {
    return other.m_Degrees > m_Degrees ? other.m_Degrees - m_Degrees
                                       : 360.0 - m_Degrees + other.m_Degrees;
}
