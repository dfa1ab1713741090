// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"

/// The commands of the family "contours".
namespace HOST {

void AddListContours(Family& contours);
void AddEditContours(Family& contours);
void AddGenerateContours(Family& contours);
/// "set", "add" and "remove".
void AddChangeContours(Family& contours);

}  // namespace HOST
