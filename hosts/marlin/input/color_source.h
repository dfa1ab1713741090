// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/colors/color_table.h>

#include <string>

namespace HOST {

/// Reads a color table file (extension "col") or a palette file ("cpt"); a file of any other name
/// is a color table if it holds the section "ColorTable". Fails with the file, the cause and the
/// line where one is known, also for a table without entries.
void ReadColors(const std::string& path, ColorTable& table);

/// Returns true for a name that ends in a dot and the extension, in any case.
[[nodiscard]] bool HasExtension(const std::string& path, const char* extension);

}  // namespace HOST
