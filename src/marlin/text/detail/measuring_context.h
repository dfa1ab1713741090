// SPDX-License-Identifier: MIT
#pragma once

class CDC;

namespace MARLINSUITE {

/// Makes the empty wrapper one of the display, in which one text unit is as many logical units
/// as `GDIScaleFactor` says.
void PrepareMeasuringContext(CDC& dc);

}  // namespace MARLINSUITE
