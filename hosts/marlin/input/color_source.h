// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/colors/color_table.h>
#include <marlin/base/error_string.h>

#include <string>

namespace HOST {

/// Reads a color table file (extension "col") or a palette file ("cpt"); a file of any other name
/// is a color table if it holds the section "ColorTable". Failures name file and cause, with the
/// line where one is known; a table without entries is one.
[[nodiscard]] ErrorString ReadColors(const std::string& path, ColorTable& table);

/// Whether the name ends in a dot and the extension, in any case.
[[nodiscard]] bool HasExtension(const std::string& path, const char* extension);

}  // namespace HOST
