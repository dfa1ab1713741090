// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/colors/color_table.h>
#include <marlin/base/error_string.h>
#include <marlin/core/export.h>

#include <string>
#include <string_view>

/// Replaces a color table by a palette file (extension "cpt") of the GMT programs. A slice of
/// one color becomes one entry at its lower bound; a slice of two becomes 8 equal steps, each
/// with the color of its middle, taken in the palette's color model; values in a gap keep the
/// color before it. One last entry is at the upper bound, with the color of "F" or else the
/// last slice's upper color. The color below is that of "B" or else the first slice's lower
/// color. docs/formats/palette.md describes the part of the format that is read. On failure the
/// message is "file:line: cause", without a line for a file that cannot be read, and the table is
/// unchanged.
MARLIN_API ErrorString ImportPalette(const std::string& path, ColorTable& table);
/// The same from the text of a file; the path is for messages alone.
MARLIN_API ErrorString ImportPalette(const std::string& path, std::string_view text,
                                     ColorTable& table);
