// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_scale.h>
#include <marlin/platform/fonts/detail/glyph_pen.h>
#include <marlin/platform/fonts/text_outline.h>

#include <utility>

namespace PLATFORM {

bool GetTextOutline(HDC dc, const char* text, int count, TextOutline& outline) {
    const ContextRecord* context = Contexts.Content(dc);
    const SelectedFont font = context ? FontOf(*context) : SelectedFont();
    if (!font || count < 0 || (!text && count > 0)) {
        return false;
    }
    const FontFace& face = *font.Entry->Face;
    const FaceMetrics& metrics = face.Metrics();
    const FontScale scale = ScaleOf(*font.Font, metrics, context->Map);
    TextOutline made;
    {
        const std::scoped_lock lock(FontStore::Lock());
        made.Advance =
            AppendText(face, std::string_view(text, static_cast<std::size_t>(count)), made.Steps);
    }
    if (font.Font->Underline) {
        AppendLine(made.Advance, metrics.UnderlinePosition, metrics.UnderlineSize, made.Steps);
    }
    if (font.Font->StrikeOut) {
        AppendLine(made.Advance, metrics.StrikeoutPosition, metrics.StrikeoutSize, made.Steps);
    }
    made.Ascent = metrics.CellAscent;
    made.Descent = metrics.CellDescent;
    made.Scale = scale.Logical / scale.Design;
    outline = std::move(made);
    return true;
}

}  // namespace PLATFORM
