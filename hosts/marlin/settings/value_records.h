// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"
#include <marlin/settings/section.h>

#include <vector>

namespace HOST {

/// Appends the records of a section that one value holds each: text styles, depth labels, lines.
void AddValueRecords(const Section& section, std::vector<Record>& records);

}  // namespace HOST
