// SPDX-License-Identifier: MIT
#include <marlin/color/color_text.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/ascii.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace MARLINSUITE {

namespace {

constexpr std::array<std::pair<std::string_view, RGBColor>, 8> names = {{
    {"black", RGBColor(0, 0, 0)},
    {"red", RGBColor(255, 0, 0)},
    {"yellow", RGBColor(255, 255, 0)},
    {"green", RGBColor(0, 255, 0)},
    {"cyan", RGBColor(0, 255, 255)},
    {"blue", RGBColor(0, 0, 255)},
    {"magenta", RGBColor(255, 0, 255)},
    {"white", RGBColor(255, 255, 255)},
}};

// Digits alone, at most the limit.
std::optional<int> ParseNatural(std::string_view text, int base, int limit) {
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, base);
    const bool isNatural = error == std::errc() && stop == end && text.front() != '-';
    return isNatural && value <= limit ? std::optional(value) : std::nullopt;
}

std::optional<RGBColor> ParseHex(std::string_view digits) {
    const std::optional<int> value =
        digits.size() == 6 ? ParseNatural(digits, 16, 0xFFFFFF) : std::nullopt;
    return value ? std::optional(RGBColor(*value >> 16, *value >> 8, *value)) : std::nullopt;
}

std::optional<RGBColor> ParseTriple(std::string_view text, char separator) {
    std::array<int, 3> levels{};
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const auto end = i + 1 < levels.size() ? text.find(separator) : text.size();
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::optional<int> level = ParseNatural(text.substr(0, end), 10, 255);
        if (!level) {
            return std::nullopt;
        }
        levels[i] = *level;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return RGBColor(levels[0], levels[1], levels[2]);
}

}  // namespace

std::optional<RGBColor> ParseColor(std::string_view text) {
    constexpr std::string_view dxf = "dxf:";
    if (text.starts_with('#')) {
        return ParseHex(text.substr(1));
    }
    if (EqualIgnoringCase(text.substr(0, dxf.size()), dxf)) {
        const std::optional<int> index = ParseNatural(text.substr(dxf.size()), 10, 255);
        return index ? std::optional<RGBColor>(DXFColor(*index)) : std::nullopt;
    }
    const auto* const name = std::ranges::find_if(
        names, [text](const auto& entry) { return EqualIgnoringCase(entry.first, text); });
    if (name != names.end()) {
        return name->second;
    }
    return ParseTriple(text, text.find('/') == std::string_view::npos ? ',' : '/');
}

std::string ColorText(const RGBColor& color) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const int level : {color.Red(), color.Green(), color.Blue()}) {
        text += digits[static_cast<std::size_t>(level >> 4)];
        text += digits[static_cast<std::size_t>(level & 0x0F)];
    }
    return text;
}

}  // namespace MARLINSUITE
