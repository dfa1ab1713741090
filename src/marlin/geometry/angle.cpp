// SPDX-License-Identifier: MIT
#include <marlin/geometry/angle.h>

int Angle::Quadrant() const noexcept {
    return std::isnan(m_Degrees) ? 0 : static_cast<int>(m_Degrees / 90.0 + 1.0);
}

Angle Angle::Difference(const Angle& other) const noexcept {
    return other.m_Degrees > m_Degrees ? other.m_Degrees - m_Degrees
                                       : 360.0 - m_Degrees + other.m_Degrees;
}
