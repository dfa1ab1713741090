// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace HOST {

/// The word with the fewest letters to change, add or drop; the first of several. There must be
/// one.
[[nodiscard]] std::string NearestWord(std::string_view typed,
                                      const std::vector<std::string>& words);

}  // namespace HOST
