// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/colors/detail/palette_color.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MARLINSUITE::detail {

/// The values from `Low` up to `High` and the colors at both.
struct PaletteSlice {
    double Low = 0.0;
    double High = 0.0;
    PaletteColor LowColor{};
    PaletteColor HighColor{};
};

/// The contents of a palette file. Slices ascend and do not overlap; there may be gaps.
struct Palette {
    PALETTE_MODEL Model = PALETTE_MODEL::RGB;
    std::optional<double> Hinge;  ///< The value at 0 of slices from -1 to 1.
    std::optional<std::pair<double, double>> Range;
    int RangeLine = 0;
    std::vector<PaletteSlice> Slices;
    std::optional<PaletteColor> Background;  ///< Below the first slice.
    std::optional<PaletteColor> Foreground;  ///< Above the last slice.
};

/// Reads the text of a palette file. docs/formats/palette.md describes the format.
class PaletteReader {
public:
    /// False at the first line that is not understood; `Line` and `Cause` then say where and why.
    bool Read(std::string_view text);

    [[nodiscard]] const Palette& Result() const noexcept { return m_Palette; }
    [[nodiscard]] int Line() const noexcept { return m_Line; }
    [[nodiscard]] const std::string& Cause() const noexcept { return m_Cause; }

private:
    using Items = std::span<const std::string_view>;

    template <class Take>
    bool ForEachLine(std::string_view text, Take take);
    bool TakeComment(std::string_view line);
    bool TakeModel(std::string_view name);
    bool TakeRange(std::string_view bounds);
    bool TakeHinge(std::string_view position);
    bool TakeEntry(std::string_view line);
    bool TakeOuterColor(char which, Items items);
    bool TakeSlice(Items items);
    bool TakeColor(Items items, PaletteColor& color);
    bool TakeBound(std::string_view item, double& bound);
    bool Fail(std::string cause);

    Palette m_Palette;
    int m_Line = 0;
    std::string m_Cause;
};

}  // namespace MARLINSUITE::detail
