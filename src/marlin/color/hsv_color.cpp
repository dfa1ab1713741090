// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/hexcone.h>
#include <marlin/color/hsv_color.h>

namespace {

constexpr auto maxValue = static_cast<float>(RGBColor::MAX_VALUE());

// The conversion of a value that no int can hold would be undefined.
int Truncated(float value, int otherwise) noexcept {
    constexpr float limit = 2147483648.0F;
    return value >= -limit && value < limit ? static_cast<int>(value) : otherwise;
}

int Component(float value) noexcept {
    return Truncated(value, 0);
}

}  // namespace

HSVColor::HSVColor(const RGBColor& color) noexcept {
    const auto [hue, saturation, value] = MARLINSUITE::detail::ToHexcone(
        static_cast<float>(color.Red()) / maxValue, static_cast<float>(color.Green()) / maxValue,
        static_cast<float>(color.Blue()) / maxValue);
    m_Hue = saturation == 0.0F ? UNDEFINED_HUE : hue;
    m_Saturation = saturation;
    m_Value = value;
}

HSVColor::operator RGBColor() const noexcept {
    const float full = maxValue * m_Value;
    if (m_Saturation == 0.0F) {
        const int gray = m_Hue == UNDEFINED_HUE ? Component(full) : 0;
        return {gray, gray, gray};
    }
    const float sextants = m_Hue / 60.0F;
    const int sextant = Truncated(sextants, -1);
    const auto [red, green, blue] = MARLINSUITE::detail::FromHexcone(
        sextant, sextants - static_cast<float>(sextant), m_Saturation, full);
    return {Component(red), Component(green), Component(blue)};
}
