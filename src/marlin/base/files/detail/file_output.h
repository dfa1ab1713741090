// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/base/files/detail/block_output.h>

#include <string>

namespace MARLINSUITE {

/// As `ReplaceFile` of bytes, for contents that are made while they are written.
[[nodiscard]] ErrorString ReplaceFile(const std::string& path, const Contents& contents);

}  // namespace MARLINSUITE
