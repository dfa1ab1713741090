// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

// The names of the keywords that every host gives values to; whose values they are, the host
// knows. May be read from every static constructor.

extern MARLIN_API const std::string PredefinedKeywordKeys[9];
/// Those that only a plot has.
extern MARLIN_API const std::string PredefinedPlotKeywordKeys[1];
