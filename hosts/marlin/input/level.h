// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Levels of contours as files hold them: with six decimals.
namespace HOST {

/// The level rounded to six decimals; never a negative zero.
[[nodiscard]] double StoredLevel(double level);
/// The level in plain decimals, at most six, without zeros at the end.
[[nodiscard]] std::string LevelText(double level);
/// Reads a finite number and rounds it. Returns false, and leaves the target, for another text.
[[nodiscard]] bool ParseLevel(std::string_view text, double& level);

}  // namespace HOST
