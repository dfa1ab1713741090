// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/fonts/detail/font_scale.h>

#include <algorithm>
#include <cmath>

namespace PLATFORM {

namespace {

// 12 points, and never nothing.
int DefaultCell(const Mapping& mapping) noexcept {
    return std::max(RoundToInt(12.0 / 72.0 * DotsPerInch / mapping.ScaleY()), 1);
}

}  // namespace

SelectedFont FontOf(const ContextRecord& context) {
    const FontRecord* font =
        Fonts.Content(context.Font ? context.Font : GetStockObject(SYSTEM_FONT));
    if (!font) {
        return {};
    }
    return {font, font->StockFace ? FontStore::Find(font->StockFace, FW_NORMAL, false, true)
                                  : font->Entry};
}

FontScale ScaleOf(const FontRecord& font, const FaceMetrics& face,
                  const Mapping& mapping) noexcept {
    FontScale scale;
    const int cellUnits = face.CellAscent + face.CellDescent;
    if (font.Height < 0) {
        scale.Logical = std::fabs(static_cast<double>(font.Height));
        scale.Design = face.UnitsPerEm;
        scale.Cell = scale.Round(cellUnits);
        return scale;
    }
    scale.Cell = font.Height > 0 ? font.Height : DefaultCell(mapping);
    scale.Logical = scale.Cell;
    scale.Design = cellUnits;
    return scale;
}

}  // namespace PLATFORM
