// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Where paths lead. Results as for `File`.
namespace PLATFORM::detail {

/// Replaces a path by the one that its symbolic links lead to, where no file needs to exist. Stops
/// at the name of an open descriptor. ELOOP for links in a circle.
[[nodiscard]] int FollowLinks(std::string& path);
/// The number of the open descriptor of this process that the path names, as "/dev/fd/1" and
/// "/proc/self/fd/1" do; -1 for any other path.
[[nodiscard]] int DescriptorOf(const std::string& path);
/// The folder part of a path, with an ending "/"; "./" for a name alone.
[[nodiscard]] std::string FolderOf(const std::string& path);

}  // namespace PLATFORM::detail
