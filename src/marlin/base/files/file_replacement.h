// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace MARLINSUITE {

/// Gives a file new contents, as a whole or not at all: the bytes are written to a new file beside
/// the target, flushed to disk and renamed over it, through symbolic links to the file that they
/// name. Owner, group, mode and extended attributes (access lists among them) stay; set-user and
/// set-group bits go unless the owner or root saves. Of a file with several hard links this one
/// name gets the new contents, the others keep the old. A save cut short, by a signal too, leaves
/// the old file and nothing else, but for one file ".marlin-….tmp" in the moment of the rename or
/// on file systems that have no unnamed files.
///
/// Where the folder takes no new file or the new file cannot have those attributes, the target is
/// rewritten in place, after its new size has been reserved. Pipes, devices and open descriptors
/// ("/dev/stdout") are written to. A failure names the file and the system's reason and leaves
/// the old file as it was.
/// @code
/// ErrorString error = MARLINSUITE::ReplaceFile("notes.txt", "first\n");
/// assert(error.Empty());
/// std::string bytes;
/// error = MARLINSUITE::ReadFile("notes.txt", bytes);
/// assert(error.Empty() && bytes == "first\n");
/// error = MARLINSUITE::ReadFile("none", bytes);
/// assert(error.Text() == "none: No such file or directory");
/// @endcode
ErrorString MARLIN_API ReplaceFile(const std::string& path, std::string_view bytes);

/// Reads a file whole. A failure names the file and the reason: the system's, or that the file has
/// more than `limit` bytes, of which no more are read. The target is then unchanged.
ErrorString MARLIN_API ReadFile(const std::string& path, std::string& bytes,
                                std::size_t limit = std::numeric_limits<std::size_t>::max());

}  // namespace MARLINSUITE
