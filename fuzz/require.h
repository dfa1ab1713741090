// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

/// Ends a fuzz run with a finding when what must hold does not.
inline void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}
