// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/rasterizer.h>
#include <marlin/platform/fonts/detail/font_face.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace PLATFORM::detail {

namespace {

struct Ink {
    BitmapRecord* Surface;
    std::uint32_t Pixel;
};

// Each component by itself, rounded to the nearest.
std::uint32_t Mix(std::uint32_t below, std::uint32_t above, std::uint32_t coverage) noexcept {
    std::uint32_t mixed = 0;
    for (unsigned int shift = 0; shift < 24; shift += 8) {
        const std::uint32_t under = below >> shift & 0xFFU;
        const std::uint32_t over = above >> shift & 0xFFU;
        mixed |= (under * (255 - coverage) + over * coverage + 127) / 255 << shift;
    }
    return mixed;
}

void PaintSpans(int y, int count, const FT_Span* spans, void* user) {
    const Ink& ink = *static_cast<const Ink*>(user);
    BitmapRecord& surface = *ink.Surface;
    const int row = -1 - y;  // upwards to downwards
    if (row < 0 || row >= surface.Height) {
        return;
    }
    std::uint32_t* pixels =
        surface.Pixels.data() + static_cast<std::ptrdiff_t>(row) * surface.Width;
    for (int i = 0; i < count; ++i) {
        const int first = std::max<int>(spans[i].x, 0);
        const int end = std::min<int>(spans[i].x + spans[i].len, surface.Width);
        for (int x = first; x < end; ++x) {
            pixels[x] = Mix(pixels[x], ink.Pixel, spans[i].coverage);
        }
    }
}

// Coordinates of FreeType's renderer have 26.6 bits.
bool Fits(const FT_BBox& box, const Placement& at) noexcept {
    constexpr double largest = 32000;
    const double pixels[] = {at.X + static_cast<double>(box.xMin) * at.ScaleX,
                             at.X + static_cast<double>(box.xMax) * at.ScaleX,
                             at.Y - static_cast<double>(box.yMin) * at.ScaleY,
                             at.Y - static_cast<double>(box.yMax) * at.ScaleY};
    return std::ranges::all_of(pixels, [](double pixel) { return std::fabs(pixel) < largest; });
}

}  // namespace

void PaintGlyph(FT_Outline_& glyph, const Placement& at, COLORREF color, BitmapRecord& surface) {
    FT_BBox box;
    FT_Outline_Get_CBox(&glyph, &box);
    if (!Fits(box, at)) {
        return;
    }
    constexpr double unit = 64.0 * 65536.0;  // a 64th of a pixel, in 16.16 fixed point
    const FT_Matrix scale{std::lround(at.ScaleX * unit), 0, 0, std::lround(at.ScaleY * unit)};
    FT_Outline_Transform(&glyph, &scale);
    // The rows of FreeType count upwards, those of a surface downwards.
    FT_Outline_Translate(&glyph, std::lround(at.X * 64), std::lround(-at.Y * 64));
    Ink ink{&surface, PixelOf(color)};
    FT_Raster_Params parameters{};
    parameters.flags = FT_RASTER_FLAG_AA | FT_RASTER_FLAG_DIRECT | FT_RASTER_FLAG_CLIP;
    parameters.gray_spans = PaintSpans;
    parameters.user = &ink;
    parameters.clip_box = {0, -surface.Height, surface.Width, 0};
    FT_Outline_Render(FreeType(), &glyph, &parameters);
}

}  // namespace PLATFORM::detail
