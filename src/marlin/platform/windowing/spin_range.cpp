// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>
#include <marlin/platform/windowing/spin_range.h>

#include <algorithm>
#include <cmath>

namespace PLATFORM {

CString SpinRange::Step(const CString& text, int steps) const {
    // A real number: the edit may hold 2.5, and the sum may leave the range of an int.
    double value = Lower;
    MARLINSUITE::ParseWhole(text.View(), value);
    const double moved = std::min<double>(std::trunc(value) + steps, Upper);
    std::string result;
    MARLINSUITE::AppendNumber(result, static_cast<int>(std::max<double>(moved, Lower)));
    return CString(result);
}

}  // namespace PLATFORM
