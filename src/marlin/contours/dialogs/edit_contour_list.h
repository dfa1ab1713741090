// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

namespace DLG {

/// Lets the user edit a contour definition file, or a new list for an empty path. True when the
/// editor was closed with OK; whether the file could be saved is not told. False also when
/// nothing can be shown.
MARLIN_API bool EditContourList(const CString& path);

}  // namespace DLG
