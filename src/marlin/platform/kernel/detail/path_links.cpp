// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/path_links.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <memory>

#include <unistd.h>

namespace PLATFORM::detail {

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

// Only the system's own folder has links that lead to what is open, whatever has become of its
// name.
int DescriptorOf(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    int descriptor = -1;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), descriptor);
    if (error != std::errc() || *end != '\0' || descriptor < 0) {
        return -1;
    }
    const auto folderOf = [](const char* found) {
        const std::unique_ptr<char, decltype(&std::free)> real(::realpath(found, nullptr),
                                                               &std::free);
        return std::string(real ? real.get() : "");
    };
    const std::string folder = folderOf(FolderOf(path).c_str());
    return !folder.empty() && folder == folderOf("/proc/self/fd") ? descriptor : -1;
}

int FollowLinks(std::string& path) {
    constexpr int mostLinks = 40;  // the system's own limit
    std::string followed = path;
    std::string target(4096, '\0');  // no path is longer
    for (int i = 0; i < mostLinks; ++i) {
        if (DescriptorOf(followed) >= 0) {
            path = followed;
            return 0;
        }
        const ssize_t length = ::readlink(followed.c_str(), target.data(), target.size());
        if (length < 0 && errno != EINVAL && errno != ENOENT) {
            return errno;
        }
        if (length < 0) {  // no link, or no file
            path = followed;
            return 0;
        }
        const std::string next = target.substr(0, static_cast<std::size_t>(length));
        followed = (next.starts_with('/') ? std::string() : FolderOf(followed)).append(next);
    }
    return ELOOP;
}

}  // namespace PLATFORM::detail
