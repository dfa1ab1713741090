// SPDX-License-Identifier: MIT
#include <marlin/base/version_gate.h>

bool CheckDllVersion(unsigned int version, const char*, const char*) noexcept {
    constexpr unsigned int acceptedMajor = 4;
    return version >> 24 == acceptedMajor;
}
