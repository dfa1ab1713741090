// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/detail/outline_buffer.h>
#include <marlin/platform/drawing/detail/rasterizer.h>
#include <marlin/platform/fonts/detail/font_store.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace PLATFORM::detail {

namespace {

// An outline of FreeType: counts have 16 bits, coordinates 26.6 fixed point. `Fits` becomes false
// for a shape that they cannot hold.
struct Contours : OutlineBuffer<FT_Outline> {
    bool Fits = true;

    void Add(OutlinePoint point, const Placement& at, int tag);
};

constexpr double LargestPixel = 32000;
constexpr std::size_t MostPoints = 32000;

// The rows of FreeType count upwards, those of a surface downwards.
void Contours::Add(OutlinePoint point, const Placement& at, int tag) {
    const double x = at.X + point.X * at.ScaleX;
    const double y = at.Y - point.Y * at.ScaleY;
    Fits = Fits && std::fabs(x) < LargestPixel && std::fabs(y) < LargestPixel &&
           Points.size() < MostPoints;
    if (Fits) {
        OutlineBuffer::Add({std::lround(x * 64), std::lround(-y * 64)}, tag);
    }
}

void AddStep(Contours& contours, const OutlineStep& step, const Placement& at) {
    if (step.Kind == OutlineStep::MOVE && !contours.Points.empty()) {
        contours.EndContour();
    }
    if (step.Kind == OutlineStep::CONIC) {
        contours.Add(step.Control1, at, FT_CURVE_TAG_CONIC);
    } else if (step.Kind == OutlineStep::CUBIC) {
        contours.Add(step.Control1, at, FT_CURVE_TAG_CUBIC);
        contours.Add(step.Control2, at, FT_CURVE_TAG_CUBIC);
    }
    contours.Add(step.To, at, FT_CURVE_TAG_ON);
}

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

}  // namespace

void PaintShape(const std::vector<OutlineStep>& steps, const Placement& placement, COLORREF color,
                BitmapRecord& surface) {
    Contours contours;
    for (const OutlineStep& step : steps) {
        AddStep(contours, step, placement);
    }
    if (!contours.Fits || contours.Points.empty()) {
        return;
    }
    contours.EndContour();
    Ink ink{&surface, PixelOf(color)};
    FT_Raster_Params parameters{};
    parameters.flags = FT_RASTER_FLAG_AA | FT_RASTER_FLAG_DIRECT | FT_RASTER_FLAG_CLIP;
    parameters.gray_spans = PaintSpans;
    parameters.user = &ink;
    parameters.clip_box = {0, -surface.Height, surface.Width, 0};
    FT_Outline outline = contours.Get();
    // An instance of FreeType serves one thread at a time.
    const std::scoped_lock lock(FontStore::Lock());
    if (FreeType()) {
        FT_Outline_Render(FreeType(), &outline, &parameters);
    }
}

}  // namespace PLATFORM::detail
