// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/rounding.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/selected_font.h>

#include <algorithm>

namespace PLATFORM::detail {

namespace {

// 12 points, and never nothing.
int DefaultCell(const Mapping& mapping) noexcept {
    return std::max(RoundToInt(12.0 / 72.0 * DotsPerInch / mapping.ScaleY()), 1);
}

// Stock fonts are made before anybody draws with them, and looking for their faces takes long.
const FontFace* FaceOf(const FontRecord& font) {
    return font.Stock ? FontStore::Find({"Arial"}) : font.Face;
}

}  // namespace

SelectedFont FontOf(HDC dc) {
    const ContextRecord* context = Contexts().Find(dc);
    if (!context) {
        return {};
    }
    const auto* const font = FindObject<FontRecord>(context->Selected[FontKind]);
    if (!font) {
        return {};
    }
    return {font, {FaceOf(*font), font->Height, DefaultCell(context->Map)}};
}

}  // namespace PLATFORM::detail
