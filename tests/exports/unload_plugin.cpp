// SPDX-License-Identifier: MIT
#include <marlin/shared.h>

#include <string>

/// Uses something of each layer; 0 for the results expected.
extern "C" __attribute__((visibility("default"))) int UseLibrary() {
    TextInfo style;
    style.SetFont("Liberation Sans");
    style.SetSize(2.5F);
    TextRectComp rects;
    IniFile file;
    const bool failed = !file.Open(std::string("/nowhere/at/all.ini")).Empty();
    const bool isWide = rects(style, "Depth").width > 0.0;
    const bool isRed = DXFColor(RGBColor(255, 0, 0)) == 10;
    return failed && isWide && isRed && !CListKeywords::Get().GetListKeyword("none") ? 0 : 1;
}
