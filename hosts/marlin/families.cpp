// SPDX-License-Identifier: MIT
#include "families.h"

namespace HOST {

namespace {

void AddContours(Family& program) {
    Family contours = program.AddFamily("contours", "Contour definition files (.cdf)");
    AddListContours(contours);
    AddEditContours(contours);
    AddGenerateContours(contours);
    AddChangeContours(contours);
}

void AddSettings(Family& program) {
    Family settings = program.AddFamily("settings", "Settings files");
    AddCheckSettings(settings);
    AddSealSettings(settings);
    AddOneSetting(settings);
    AddShowSettings(settings);
    AddDiffSettings(settings);
}

void AddText(Family& program) {
    Family text = program.AddFamily("text", "Rectangles of plot texts and depth labels");
    AddMeasureTexts(text);
    AddMeasureDepths(text);
    AddListFonts(text);
}

}  // namespace

// In the order of the help.
void AddFamilies(Family& program) {
    AddContours(program);
    AddColors(program);
    AddSettings(program);
    AddKeywords(program);
    AddFile(program);
    AddText(program);
}

}  // namespace HOST
