// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"

/// The families of commands. Each is declared where it is implemented, in a file or a folder of
/// its name, with the options of every command beside its work.
namespace HOST {

void AddContours(Family& program);
void AddColors(Family& program);
void AddSettings(Family& program);
void AddKeywords(Family& program);
void AddFile(Family& program);
void AddText(Family& program);

}  // namespace HOST
