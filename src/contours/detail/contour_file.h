// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>

#include <deque>
#include <string>

/// Contour definition files: settings files with a section for each definition. Reading and
/// writing take time in proportion to the definitions, in whatever order a file holds them.
namespace MARLINSUITE {

using ContourDefinitions = std::deque<ContourDefinitionList::ContourDefInfo>;

/// Appends the definitions of a file. False, and nothing appended, when it cannot be read or
/// holds no section.
[[nodiscard]] bool ReadContourFile(const std::string& path, ContourDefinitions& definitions);

[[nodiscard]] std::string ContourFileText(const ContourDefinitions& definitions);

}  // namespace MARLINSUITE
