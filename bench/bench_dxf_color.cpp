// SPDX-License-Identifier: MIT
// Ten thousand color words become indices of the DXF palette.
#include <marlin/color/dxf_color.h>

#include <QColor>
#include <array>
#include <limits>

#include <bench/inputs.h>
#include <bench/jobs.h>

namespace {

constexpr int count = 10'000;

std::vector<unsigned long> Colors() {
    BENCH::Numbers numbers;
    std::vector<unsigned long> colors;
    for (int i = 0; i < count; ++i) {
        colors.push_back(static_cast<unsigned long>(numbers.Next() & 0xFFFFFFU));
    }
    return colors;
}

struct Components {
    int Red = 0;
    int Green = 0;
    int Blue = 0;

    explicit Components(unsigned long color = 0)
        : Red(static_cast<int>(color & 255U)),
          Green(static_cast<int>(color >> 8U & 255U)),
          Blue(static_cast<int>(color >> 16U & 255U)) {}
};

int NearestOf(const std::array<Components, 256>& palette, unsigned long color) {
    const Components wanted(color);
    int best = 0;
    int bestDistance = std::numeric_limits<int>::max();
    for (int i = 0; i < 256; ++i) {
        const Components& entry = palette[static_cast<std::size_t>(i)];
        const int red = entry.Red - wanted.Red;
        const int green = entry.Green - wanted.Green;
        const int blue = entry.Blue - wanted.Blue;
        const int distance = red * red + green * green + blue * blue;
        if (distance < bestDistance) {
            bestDistance = distance;
            best = i;
        }
    }
    return best;
}

void SearchPalette(const std::vector<unsigned long>& colors) {
    static const auto palette = [] {
        std::array<Components, 256> entries;
        for (int i = 0; i < 256; ++i) {
            entries[static_cast<std::size_t>(i)] =
                Components(static_cast<unsigned long>(DXFColor(i)));
        }
        return entries;
    }();
    for (const unsigned long color : colors) {
        benchmark::DoNotOptimize(NearestOf(palette, color));
    }
}

int ShadeOf(float value) {
    return value > 0.8F ? 0 : value > 0.6F ? 2 : value > 0.4F ? 4 : value > 0.2F ? 6 : 8;
}

// The rule of the library's conversion for colors; grays take the nearest gray.
int IndexByQColor(const Components& color) {
    float hue = 0.0F;
    float saturation = 0.0F;
    float value = 0.0F;
    QColor(color.Red, color.Green, color.Blue).getHsvF(&hue, &saturation, &value);
    if (hue < 0.0F) {
        return color.Red == 0 ? 0 : 250 + (color.Red - 0x54 + 17) / 34;
    }
    const int nearest = static_cast<int>(hue * 240.0F + 5.0F) / 10 % 24;
    return 10 + nearest * 10 + ShadeOf(value) + (saturation < 0.5F ? 1 : 0);
}

}  // namespace

int main(int argc, char** argv) {
    BENCH::Contest("color_to_index/marlin", Colors, [](const std::vector<unsigned long>& colors) {
        for (const unsigned long color : colors) {
            benchmark::DoNotOptimize(DXFColor(color).Index());
        }
    });
    BENCH::Contest("color_to_index/search", Colors, SearchPalette);
    BENCH::Contest("color_to_index/qcolor", Colors, [](const std::vector<unsigned long>& colors) {
        for (const unsigned long color : colors) {
            benchmark::DoNotOptimize(IndexByQColor(Components(color)));
        }
    });
    return BENCH::Run(argc, argv);
}
