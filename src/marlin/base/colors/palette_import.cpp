// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/palette_reader.h>
#include <marlin/base/colors/palette_import.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/kernel/detail/file.h>

#include <cerrno>
#include <cmath>

namespace {

using MARLINSUITE::detail::Palette;
using MARLINSUITE::detail::PaletteColor;
using MARLINSUITE::detail::PaletteSlice;

ErrorString ReadPaletteText(const std::string& path, std::string& text) {
    constexpr std::size_t largestFile = 4 * 1024 * 1024;
    const int error = PLATFORM::detail::ReadWhole(path, largestFile, text);
    if (error == EFBIG) {
        return ErrorString(path + ": larger than 4 MiB, which no palette is");
    }
    return error == 0 ? ErrorString() : ErrorString(MARLINSUITE::SystemReason(path, error));
}

double Scaled(double value, const std::pair<double, double>& range,
              std::optional<double> hinge) noexcept {
    if (!hinge) {
        return std::lerp(range.first, range.second, value);
    }
    return std::lerp(*hinge, value < 0.0 ? range.first : range.second, std::fabs(value));
}

// Slices over the unit interval are fractions of the range, slices over both sides of a hinge
// fractions of each side. False when a range lacks one of the sides.
bool ApplyRange(Palette& palette) noexcept {
    const double low = palette.Slices.front().Low;
    const auto hinge = low == -1.0 ? palette.Hinge : std::nullopt;
    if (!palette.Range || palette.Slices.back().High != 1.0 || !(low == 0.0 || hinge)) {
        return true;
    }
    if (hinge && !(palette.Range->first < *hinge && *hinge < palette.Range->second)) {
        return false;
    }
    for (PaletteSlice& slice : palette.Slices) {
        slice.Low = Scaled(slice.Low, *palette.Range, hinge);
        slice.High = Scaled(slice.High, *palette.Range, hinge);
    }
    return true;
}

void AddSlice(const PaletteSlice& slice, MARLINSUITE::detail::PALETTE_MODEL model,
              ColorTable& table) {
    const int steps = slice.LowColor == slice.HighColor ? 1 : 8;
    for (int i = 0; i < steps; ++i) {
        const PaletteColor color =
            MARLINSUITE::detail::MixedColor(slice.LowColor, slice.HighColor, (i + 0.5) / steps);
        table.AddEntry(std::lerp(slice.Low, slice.High, static_cast<double>(i) / steps),
                       MARLINSUITE::detail::ColorWordOf(color, model));
    }
}

ColorTable TableOf(const Palette& palette) {
    ColorTable table;
    for (const PaletteSlice& slice : palette.Slices) {
        AddSlice(slice, palette.Model, table);
    }
    const PaletteSlice& first = palette.Slices.front();
    const PaletteSlice& last = palette.Slices.back();
    const PaletteColor above = palette.Foreground.value_or(last.HighColor);
    const PaletteColor below = palette.Background.value_or(first.LowColor);
    table.AddEntry(last.High, MARLINSUITE::detail::ColorWordOf(above, palette.Model));
    table.SetBelowColor(MARLINSUITE::detail::ColorWordOf(below, palette.Model));
    return table;
}

ErrorString FailureAt(std::string place, int line, const std::string& cause) {
    place += ':';
    MARLINSUITE::AppendNumber(place, line);
    return ErrorString(place + ": " + cause);
}

}  // namespace

ErrorString ImportPalette(const std::string& path, ColorTable& table) {
    std::string text;
    ErrorString failure = ReadPaletteText(path, text);
    if (!failure.Empty()) {
        return failure;
    }
    return ImportPalette(path, text, table);
}

ErrorString ImportPalette(const std::string& path, std::string_view text, ColorTable& table) {
    MARLINSUITE::detail::PaletteReader reader;
    if (!reader.Read(text)) {
        return FailureAt(path, reader.Line(), reader.Cause());
    }
    Palette palette = reader.Result();
    if (!ApplyRange(palette)) {
        return FailureAt(path, palette.RangeLine, "the range does not enclose the hinge");
    }
    table = TableOf(palette);
    return {};
}
