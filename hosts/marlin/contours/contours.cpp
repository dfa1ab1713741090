// SPDX-License-Identifier: MIT
#include "contours.h"

#include "families.h"

namespace HOST {

void AddContours(Family& program) {
    Family contours = program.AddFamily("contours", "Contour definition files (.cdf)");
    AddListContours(contours);
    AddEditContours(contours);
    AddGenerateContours(contours);
    AddChangeContours(contours);
}

}  // namespace HOST
