// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// The names of the keywords to which every host gives values. They may be read from any static
/// constructor.
extern MARLIN_API const std::string PredefinedKeywordKeys[9];
/// The names that only a plot has.
extern MARLIN_API const std::string PredefinedPlotKeywordKeys[1];
