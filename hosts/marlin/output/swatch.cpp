// SPDX-License-Identifier: MIT
#include "swatch.h"

#include "printable.h"

namespace HOST {

std::string Swatch(const RGBColor& color) {
    std::string text = "\x1B[48;2";
    for (const int level : {color.Red(), color.Green(), color.Blue()}) {
        text += ";" + NumberText(level);
    }
    return text + "m  \x1B[0m ";
}

}  // namespace HOST
