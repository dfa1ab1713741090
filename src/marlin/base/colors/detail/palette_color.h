// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace MARLINSUITE::detail {

/// The model in which a palette holds and interpolates its colors.
enum class PALETTE_MODEL {
    RGB,  ///< Red, green, blue, each 0 to 255.
    HSV,  ///< Hue 0 to 360, saturation 0 to 1, value 0 to 1.
};

/// A color of a palette in its model.
using PaletteColor = std::array<double, 3>;

/// The color of one item: r/g/b, h-s-v, #rrggbb, #rgb, a gray level or a name.
[[nodiscard]] std::optional<PaletteColor> ParseColor(std::string_view item, PALETTE_MODEL model);

/// The color of three items, each one of the model's numbers.
[[nodiscard]] std::optional<PaletteColor> ParseColorColumns(
    std::span<const std::string_view, 3> items, PALETTE_MODEL model);

/// The color at a fraction of the way, number by number; hue goes through the numbers
/// between and does not wrap at 360.
[[nodiscard]] PaletteColor MixedColor(const PaletteColor& from, const PaletteColor& to,
                                      double fraction) noexcept;

/// The color word, each of red, green and blue rounded to the nearest whole number.
[[nodiscard]] unsigned long ColorWordOf(const PaletteColor& color, PALETTE_MODEL model) noexcept;

}  // namespace MARLINSUITE::detail
