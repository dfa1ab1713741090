// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/detail/file.h>

#include <string>

namespace PLATFORM::detail {

/// Gives a new file the owner, group, extended attributes (access lists are among them) and mode
/// of the file at `path`, whose status is `old`. The set-user and set-group bits go unless the
/// owner or root does it, and file capabilities go in any case, as the system drops them from a
/// file that is written. An error when the file cannot have one of them; it may then have others.
[[nodiscard]] int TakeAttributes(const File& file, const std::string& path, const FileStatus& old);

/// Gives the set-user and set-group bits back that the system took when the owner wrote.
[[nodiscard]] int KeepSetIdBits(const File& file, const FileStatus& old) noexcept;

}  // namespace PLATFORM::detail
