// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"

/// The commands of the family "settings".
namespace HOST {

void AddCheckSettings(Family& settings);
void AddSealSettings(Family& settings);
/// "get" and "set".
void AddOneSetting(Family& settings);
void AddShowSettings(Family& settings);
void AddDiffSettings(Family& settings);

}  // namespace HOST
