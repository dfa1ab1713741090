// SPDX-License-Identifier: MIT
#include "level.h"

#include "output/printable.h"
#include <marlin/core/number_text.h>

#include <cmath>

namespace HOST {

namespace {

constexpr int decimals = 6;

}  // namespace

double StoredLevel(double level) {
    std::string text;
    MARLINSUITE::AppendFixed(text, level, decimals);
    double stored = level;
    MARLINSUITE::ParseNumber(text, stored);
    return stored + 0.0;  // which turns -0 into 0
}

std::string LevelText(double level) {
    return PlainText(level, decimals);
}

bool ParseLevel(std::string_view text, double& level) {
    double parsed = 0.0;
    if (!MARLINSUITE::ParseWhole(text, parsed) || !std::isfinite(parsed)) {
        return false;
    }
    level = StoredLevel(parsed);
    return true;
}

}  // namespace HOST
