// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"
#include <marlin/settings/section.h>

#include <vector>

namespace HOST {

/// The records that a section holds: those whose keys have no prefix, those of each prefix in the
/// order of the file, and those that one value holds.
[[nodiscard]] std::vector<Record> RecordsOf(const Section& section);

}  // namespace HOST
