// SPDX-License-Identifier: MIT
#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace PLATFORM {

/// The process's instance of FreeType; null when it does not start. Callers hold the lock of
/// the fonts.
[[nodiscard]] FT_Library FreeType() noexcept;

}  // namespace PLATFORM
