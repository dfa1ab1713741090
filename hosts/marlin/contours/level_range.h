// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace HOST {

/// The multiples of an interval that lie in a range, both ends included, in ascending order. The
/// three texts are the lowest and the highest level and the interval; they count as the decimal
/// numbers that they are, so that no rounding adds or loses a level. Fails for texts that make no
/// range, and for more levels than a contour list generates.
[[nodiscard]] std::vector<double> LevelsInRange(const std::vector<std::string>& range);

}  // namespace HOST
