// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace PLATFORM {

/// How numbers stand in edits, free of every locale. Reading takes a decimal number with blanks
/// around it and nothing else; false, and the target unchanged, for another text and for a
/// number that does not fit.
[[nodiscard]] bool ParseReal(std::string_view text, double& value) noexcept;
[[nodiscard]] bool ParseReal(std::string_view text, float& value) noexcept;
/// At most 15 significant digits of a double, 6 of a float.
[[nodiscard]] std::string RealText(double value);
[[nodiscard]] std::string RealText(float value);

}  // namespace PLATFORM
