// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <support/font_tables.h>

/// The height factor from the font's own tables: each part of the cell scaled to whole units.
inline double HeightFactorOf(const FontTables& t, float size, double unitsPerTextUnit = 1000.0) {
    const int h = static_cast<int>(size * unitsPerTextUnit);
    const auto scaled = [&](int units) {
        return std::lround(static_cast<double>(units) * h / t.Cell());
    };
    const int line = t.HheaAscender() - t.HheaDescender();
    const long external = scaled(std::max(0, t.HheaLineGap() - (t.Cell() - line)));
    const long internal = h - scaled(t.UnitsPerEm());
    const long hidden = std::labs(scaled(t.TypoDescender())) + external + internal;
    return size / (static_cast<double>(h - hidden) / unitsPerTextUnit);
}
