// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/detail/block_output.h>
#include <marlin/base/error_string.h>

#include <string>

namespace MARLINSUITE {

/// As `ReplaceFile` of bytes, for contents that are made while they are written.
[[nodiscard]] ErrorString ReplaceFile(const std::string& path, const Contents& contents);

}  // namespace MARLINSUITE
