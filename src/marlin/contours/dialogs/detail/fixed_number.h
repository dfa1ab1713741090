// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/number_text.h>
#include <marlin/platform/text/c_string.h>

namespace MARLINSUITE::detail {

inline constexpr int LevelDecimals = 2;
inline constexpr int WidthDecimals = 1;

/// A number with that many decimals, in every locale.
[[nodiscard]] inline CString FixedNumber(double value, int decimals) {
    std::string text;
    AppendFixed(text, value, decimals);
    return CString(text);
}

}  // namespace MARLINSUITE::detail
