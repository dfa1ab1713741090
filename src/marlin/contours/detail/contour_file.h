// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>

#include <span>
#include <string>
#include <vector>

/// Contour definition files: settings files with a section for each definition. Reading and
/// writing take time in proportion to the definitions, in whatever order a file holds them.
namespace MARLINSUITE {

/// Appends the definitions of a file. False, and nothing appended, when it cannot be read or
/// holds no section.
[[nodiscard]] bool ReadContourFile(const std::string& path,
                                   std::vector<ContourDefinitionList::ContourDefInfo>& definitions);

/// Replaces a file. False, and an old file unchanged, when it cannot be written.
[[nodiscard]] bool WriteContourFile(
    const std::string& path, std::span<const ContourDefinitionList::ContourDefInfo> definitions);

}  // namespace MARLINSUITE
