// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/core/export.h>

/// A color as hue in degrees, saturation and value, in the hexcone model. Colors that come from
/// `RGBColor` have a hue in [0, 360), or `UNDEFINED_HUE` for a gray, and saturation and value in
/// [0, 1]; colors given as numbers are kept as they are. Default (0, 0, 0). All arithmetic is
/// single precision.
///
/// @code
/// const HSVColor blue(RGBColor(0, 0, 255));
/// assert(blue.Hue() == 240.0F);
/// assert(RGBColor(HSVColor(120, 1, 1)) == RGBColor(0, 255, 0));
/// @endcode
class MARLIN_API HSVColor {
public:
    /// The hue of grays.
    static constexpr float UNDEFINED_HUE = -1.0F;

    constexpr HSVColor() noexcept = default;
    /// A hue of exactly 360 becomes 0; nothing else is wrapped or clamped.
    constexpr HSVColor(float hue, float saturation, float value) noexcept
        : m_Hue(hue == 360.0F ? 0.0F : hue), m_Saturation(saturation), m_Value(value) {}
    HSVColor(const RGBColor& color) noexcept;
    HSVColor(unsigned long color) noexcept : HSVColor(RGBColor(color)) {}

    /// Components are truncated and keep their low 8 bits; one that is not a number, or is
    /// beyond the range of an `int`, becomes 0. Black for a hue of -60 or less, 360 or more or
    /// not a number, and for a saturation of 0 with another hue than `UNDEFINED_HUE`.
    [[nodiscard]] operator RGBColor() const noexcept;
    [[nodiscard]] operator unsigned long() const noexcept {
        return static_cast<unsigned long>(static_cast<RGBColor>(*this));
    }

    [[nodiscard]] constexpr float Hue() const noexcept { return m_Hue; }
    [[nodiscard]] constexpr float Saturation() const noexcept { return m_Saturation; }
    [[nodiscard]] constexpr float Value() const noexcept { return m_Value; }

    /// A hue of exactly 360 becomes 0.
    constexpr void SetHue(float hue) noexcept { m_Hue = hue == 360.0F ? 0.0F : hue; }
    constexpr void SetSaturation(float saturation) noexcept { m_Saturation = saturation; }
    constexpr void SetValue(float value) noexcept { m_Value = value; }

    /// Floats that were computed seldom are equal; compare what they convert to.
    bool operator==(const HSVColor& other) const = delete;

private:
    float m_Hue = 0.0F;
    float m_Saturation = 0.0F;
    float m_Value = 0.0F;
};
