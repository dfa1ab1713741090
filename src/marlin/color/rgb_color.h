// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

/// A color of three 8-bit components, 0 to 255, which are the whole object. Default black. It
/// converts to and from the color word of the drawing calls: red in bits 0 to 7, green in bits 8 to
/// 15, blue in bits 16 to 23; higher bits are 0 when a word is made and ignored when one is read.
///
/// @code
/// const RGBColor color(64, 128, 255);
/// assert(static_cast<unsigned long>(color) == 0x00FF8040UL);
/// assert(color.GrayScale().Red() == 122);
/// @endcode
class MARLIN_API RGBColor {
public:
    constexpr RGBColor() noexcept = default;
    /// Keeps the low 8 bits of each component.
    constexpr RGBColor(int red, int green, int blue) noexcept
        : m_Red(Low8(red)), m_Green(Low8(green)), m_Blue(Low8(blue)) {}
    constexpr RGBColor(unsigned long color) noexcept
        : m_Red(static_cast<unsigned char>(color)),
          m_Green(static_cast<unsigned char>(color >> 8U)),
          m_Blue(static_cast<unsigned char>(color >> 16U)) {}

    /// The largest value of a component.
    [[nodiscard]] static constexpr int MAX_VALUE() noexcept { return 255; }

    [[nodiscard]] constexpr operator unsigned long() const noexcept {
        return static_cast<unsigned long>(m_Red) | static_cast<unsigned long>(m_Green) << 8U |
               static_cast<unsigned long>(m_Blue) << 16U;
    }
    [[nodiscard]] constexpr int Red() const noexcept { return m_Red; }
    [[nodiscard]] constexpr int Green() const noexcept { return m_Green; }
    [[nodiscard]] constexpr int Blue() const noexcept { return m_Blue; }

    /// The gray of the same brightness: 0.59 green + 0.3 red + 0.11 blue, truncated. A gray
    /// gives itself.
    [[nodiscard]] RGBColor GrayScale() const noexcept;

    /// The setters keep the low 8 bits.
    constexpr void SetRed(int red) noexcept { m_Red = Low8(red); }
    constexpr void SetGreen(int green) noexcept { m_Green = Low8(green); }
    constexpr void SetBlue(int blue) noexcept { m_Blue = Low8(blue); }

    constexpr bool operator==(const RGBColor& other) const noexcept = default;

private:
    [[nodiscard]] static constexpr unsigned char Low8(int value) noexcept {
        return static_cast<unsigned char>(value);
    }

    unsigned char m_Red = 0;
    unsigned char m_Green = 0;
    unsigned char m_Blue = 0;
};

static_assert(sizeof(RGBColor) == 3);
