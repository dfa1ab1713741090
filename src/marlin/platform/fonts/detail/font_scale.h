// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/drawing/size.h>
#include <marlin/platform/fonts/detail/font_store.h>

#include <string_view>

namespace PLATFORM {

/// The size of a font in a context: a length of a face is scaled by Logical / Design, then
/// rounded once.
struct FontScale {
    double Logical = 0;
    double Design = 1;
    /// The height of the cell in logical units.
    int Cell = 0;

    [[nodiscard]] int Round(double designUnits) const noexcept {
        return RoundToInt(designUnits * Logical / Design);
    }
};

/// A font selected into a context, ready to measure; empty when it cannot.
struct SelectedFont {
    const FontRecord* Font = nullptr;
    const FontEntry* Entry = nullptr;

    [[nodiscard]] explicit operator bool() const noexcept { return Entry != nullptr; }
};

[[nodiscard]] SelectedFont FontOf(const ContextRecord& context);
[[nodiscard]] FontScale ScaleOf(const FontRecord& font, const FaceMetrics& face,
                                const Mapping& mapping) noexcept;
/// The width and the height of a line.
[[nodiscard]] inline SIZE ExtentOf(const FontFace& face, const FontScale& scale,
                                   std::string_view text) noexcept {
    return {scale.Round(static_cast<double>(face.Advance(text))), scale.Cell};
}

}  // namespace PLATFORM
