// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/color_names.h>
#include <marlin/base/colors/detail/hexcone.h>
#include <marlin/base/colors/detail/palette_color.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace MARLINSUITE::detail {

namespace {

PaletteColor RgbFromHsv(const PaletteColor& hsv) noexcept {
    const double sextants = std::fmod(hsv[0] / 60.0, 6.0);
    const int sextant = static_cast<int>(sextants);
    return FromHexcone(sextant, sextants - sextant, hsv[1], hsv[2] * 255.0);
}

// A gray has no hue; it counts as 0.
PaletteColor HsvFromRgb(const PaletteColor& rgb) noexcept {
    const auto [hue, saturation, value] = ToHexcone(rgb[0], rgb[1], rgb[2]);
    return {hue, saturation, value / 255.0};
}

bool IsIn(const PaletteColor& color, PALETTE_MODEL model) noexcept {
    const PaletteColor most = model == PALETTE_MODEL::HSV ? PaletteColor{360.0, 1.0, 1.0}
                                                          : PaletteColor{255.0, 255.0, 255.0};
    return std::ranges::equal(color, most,
                              [](double x, double limit) { return x >= 0.0 && x <= limit; });
}

std::optional<PaletteColor> Converted(const std::optional<PaletteColor>& color, PALETTE_MODEL from,
                                      PALETTE_MODEL to) {
    if (!color || from == to) {
        return color;
    }
    return to == PALETTE_MODEL::HSV ? HsvFromRgb(*color) : RgbFromHsv(*color);
}

// Three numbers with a separator between them.
std::optional<PaletteColor> ParseTriple(std::string_view item, char separator,
                                        PALETTE_MODEL model) {
    const std::size_t first = item.find(separator);
    const std::size_t second = first == item.npos ? first : item.find(separator, first + 1);
    if (second == item.npos) {
        return std::nullopt;
    }
    const std::array parts = {item.substr(0, first), item.substr(first + 1, second - first - 1),
                              item.substr(second + 1)};
    return ParseColorColumns(parts, model);
}

PaletteColor Unpacked(unsigned int redGreenBlue) noexcept {
    return {static_cast<double>(redGreenBlue >> 16 & 0xFFU),
            static_cast<double>(redGreenBlue >> 8 & 0xFFU),
            static_cast<double>(redGreenBlue & 0xFFU)};
}

// Two digits a channel, or one for two equal ones.
std::optional<PaletteColor> ParseHex(std::string_view digits) {
    if (digits.size() != 3 && digits.size() != 6) {
        return std::nullopt;
    }
    unsigned int word = 0;
    for (const char c : digits) {
        const std::size_t digit = std::string_view("0123456789abcdef0123456789ABCDEF").find(c);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        word = word << 4 | static_cast<unsigned int>(digit & 0xFU);
        word = digits.size() == 3 ? word << 4 | static_cast<unsigned int>(digit & 0xFU) : word;
    }
    return Unpacked(word);
}

std::optional<PaletteColor> ParseNameOrGray(std::string_view item) {
    if (const auto named = NamedColorOf(item)) {
        return Unpacked(*named);
    }
    const std::array levels = {item, item, item};
    return ParseColorColumns(levels, PALETTE_MODEL::RGB);
}

}  // namespace

std::optional<PaletteColor> ParseColor(std::string_view item, PALETTE_MODEL model) {
    using enum PALETTE_MODEL;
    if (item.starts_with('#')) {
        return Converted(ParseHex(item.substr(1)), RGB, model);
    }
    if (item.find('/') != std::string_view::npos) {
        return Converted(ParseTriple(item, '/', RGB), RGB, model);
    }
    if (const auto color = ParseTriple(item, '-', HSV)) {
        return Converted(color, HSV, model);
    }
    return Converted(ParseNameOrGray(item), RGB, model);
}

std::optional<PaletteColor> ParseColorColumns(std::span<const std::string_view, 3> items,
                                              PALETTE_MODEL model) {
    PaletteColor color{};
    const bool read = ParseWhole(items[0], color[0]) && ParseWhole(items[1], color[1]) &&
                      ParseWhole(items[2], color[2]);
    return read && IsIn(color, model) ? std::optional(color) : std::nullopt;
}

PaletteColor MixedColor(const PaletteColor& from, const PaletteColor& to,
                        double fraction) noexcept {
    return {std::lerp(from[0], to[0], fraction), std::lerp(from[1], to[1], fraction),
            std::lerp(from[2], to[2], fraction)};
}

unsigned long ColorWordOf(const PaletteColor& color, PALETTE_MODEL model) noexcept {
    const PaletteColor rgb = model == PALETTE_MODEL::HSV ? RgbFromHsv(color) : color;
    unsigned long word = 0;
    for (std::size_t channel = 0; channel < rgb.size(); ++channel) {
        const double level = std::clamp(std::round(rgb[channel]), 0.0, 255.0);
        word |= static_cast<unsigned long>(level) << (8 * channel);
    }
    return word;
}

}  // namespace MARLINSUITE::detail
