// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"

/// The commands of the family "text".
namespace HOST {

void AddMeasureTexts(Family& text);
void AddMeasureDepths(Family& text);
void AddListFonts(Family& text);

}  // namespace HOST
