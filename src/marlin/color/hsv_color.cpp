// SPDX-License-Identifier: MIT
#include <marlin/color/hsv_color.h>

#include <algorithm>

namespace {

constexpr auto maxValue = static_cast<float>(RGBColor::MAX_VALUE());

// Plain conversion of what no int can hold would be undefined.
int Truncated(float value, int otherwise) noexcept {
    constexpr float limit = 2147483648.0F;
    return value >= -limit && value < limit ? static_cast<int>(value) : otherwise;
}

int Component(float value) noexcept {
    return Truncated(value, 0);
}

}  // namespace

HSVColor::HSVColor(const RGBColor& color) noexcept {
    const float red = static_cast<float>(color.Red()) / maxValue;
    const float green = static_cast<float>(color.Green()) / maxValue;
    const float blue = static_cast<float>(color.Blue()) / maxValue;
    const float largest = std::max({red, green, blue});
    const float delta = largest - std::min({red, green, blue});
    m_Value = largest;
    m_Saturation = largest == 0.0F ? 0.0F : delta / largest;
    if (m_Saturation == 0.0F) {
        m_Hue = UNDEFINED_HUE;
        return;
    }
    const float redShare = (largest - red) / delta;
    const float greenShare = (largest - green) / delta;
    const float blueShare = (largest - blue) / delta;
    float sextants = 4.0F + greenShare - redShare;
    if (largest == red) {
        sextants = blueShare - greenShare;
    } else if (largest == green) {
        sextants = 2.0F + redShare - blueShare;
    }
    m_Hue = sextants * 60.0F;
    if (m_Hue < 0.0F) {
        m_Hue += 360.0F;
    }
}

HSVColor::operator RGBColor() const noexcept {
    const float full = maxValue * m_Value;
    if (m_Saturation == 0.0F) {
        const int gray = m_Hue == UNDEFINED_HUE ? Component(full) : 0;
        return {gray, gray, gray};
    }
    const float sextants = m_Hue / 60.0F;
    const int sextant = Truncated(sextants, -1);
    const float fraction = sextants - static_cast<float>(sextant);
    const int low = Component((1.0F - m_Saturation) * full);
    const int falling = Component((1.0F - m_Saturation * fraction) * full);
    const int rising = Component((1.0F - (1.0F - fraction) * m_Saturation) * full);
    const int high = Component(full);
    switch (sextant) {
        case 0:
            return {high, rising, low};
        case 1:
            return {falling, high, low};
        case 2:
            return {low, high, rising};
        case 3:
            return {low, falling, high};
        case 4:
            return {rising, low, high};
        case 5:
            return {high, low, falling};
        default:
            return {};
    }
}
