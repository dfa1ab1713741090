// SPDX-License-Identifier: MIT
#pragma once

#include "output/output.h"

#include <string>
#include <vector>

namespace HOST {

[[nodiscard]] int CheckSettings(const std::vector<std::string>& paths, Output& output);
[[nodiscard]] int ShowSettings(const std::string& path, Output& output);

[[nodiscard]] inline int Unusable(const ErrorString& failure) {
    Report(ReasonOf(failure));
    return UNUSABLE;
}

}  // namespace HOST
