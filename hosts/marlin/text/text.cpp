// SPDX-License-Identifier: MIT
#include "text.h"

#include "families.h"

namespace HOST {

void AddText(Family& program) {
    Family text = program.AddFamily("text", "Rectangles of plot texts and depth labels");
    AddMeasureTexts(text);
    AddMeasureDepths(text);
    AddListFonts(text);
}

}  // namespace HOST
