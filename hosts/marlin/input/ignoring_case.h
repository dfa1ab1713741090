// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/ascii.h>

#include <map>
#include <string_view>

namespace HOST {

/// The order of the names of sections and keys, which have no case.
struct IgnoringCase {
    [[nodiscard]] bool operator()(std::string_view a, std::string_view b) const noexcept {
        return MARLINSUITE::CompareIgnoringCase(a, b) < 0;
    }
};

/// Values by the names of sections or keys. The texts of the names must outlive it.
template <class T>
using ByName = std::map<std::string_view, T, IgnoringCase>;

}  // namespace HOST
