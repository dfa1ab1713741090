// SPDX-License-Identifier: MIT
#include <marlin/color/rgb_color.h>

// Not inline: with a host's own compiler flags a fused or reordered sum may truncate to another
// gray. Even so the order matters, since some sums lie just below a whole number.
RGBColor RGBColor::GrayScale() const noexcept {
    if (m_Red == m_Green && m_Green == m_Blue) {
        return *this;
    }
    const int gray = static_cast<int>(0.59 * m_Green + 0.3 * m_Red + 0.11 * m_Blue);
    return {gray, gray, gray};
}
