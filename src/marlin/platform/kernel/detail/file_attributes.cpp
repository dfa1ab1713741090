// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/file_attributes.h>

#include <cerrno>
#include <cstring>
#include <set>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace PLATFORM::detail {

namespace {

constexpr unsigned int setIdBits = S_ISUID | S_ISGID;

// Takes the bytes of a call that returns the size it needs and then fills a buffer of that size.
template <class Call>
int Fill(std::string& bytes, const Call& call) {
    ssize_t size = 0;
    do {
        size = call(nullptr, 0);
        if (size > 0) {
            bytes.resize(static_cast<std::size_t>(size));
            size = call(bytes.data(), bytes.size());
        }
    } while (size < 0 && errno == ERANGE);  // it grew in between
    if (size < 0) {
        return errno;
    }
    bytes.resize(static_cast<std::size_t>(size));
    return 0;
}

using Names = std::set<std::string>;

// File capabilities are left out: they speak of the contents that go.
int TakeNames(Names& names, int result, const std::string& list) {
    if (result == ENOTSUP) {
        return 0;
    }
    for (std::size_t at = 0; result == 0 && at < list.size(); at += std::strlen(&list[at]) + 1) {
        if (std::string name = &list[at]; name != "security.capability") {
            names.insert(std::move(name));
        }
    }
    return result;
}

// An attribute that the new file has already may be one that only the system sets.
int TakeExtended(int descriptor, const std::string& path, const std::string& name) {
    const auto ofOld = [&](char* p, std::size_t n) {
        return ::getxattr(path.c_str(), name.c_str(), p, n);
    };
    const auto ofNew = [&](char* p, std::size_t n) {
        return ::fgetxattr(descriptor, name.c_str(), p, n);
    };
    std::string wanted;
    std::string present;
    if (const int error = Fill(wanted, ofOld); error != 0) {
        return error;
    }
    if (Fill(present, ofNew) == 0 && present == wanted) {
        return 0;
    }
    const int result = ::fsetxattr(descriptor, name.c_str(), wanted.data(), wanted.size(), 0);
    return result == 0 ? 0 : errno;
}

// Removes what the new file has from its folder, such as a default access list.
int TakeAllExtended(int descriptor, const std::string& path) {
    std::string list;
    Names wanted;
    Names present;
    int error = Fill(list, [&](char* p, std::size_t n) { return ::listxattr(path.c_str(), p, n); });
    error = TakeNames(wanted, error, list);
    if (error == 0) {
        error = Fill(list, [&](char* p, std::size_t n) { return ::flistxattr(descriptor, p, n); });
        error = TakeNames(present, error, list);
    }
    for (const std::string& name : present) {
        if (error == 0 && !wanted.contains(name)) {
            error = ::fremovexattr(descriptor, name.c_str()) == 0 ? 0 : errno;
        }
    }
    for (const std::string& name : wanted) {
        error = error == 0 ? TakeExtended(descriptor, path, name) : error;
    }
    return error;
}

// Owner and group each by itself: only root gives files away, but any member of two groups may
// give a file from the one to the other.
int TakeOwnerAndGroup(const File& file, const FileStatus& old) {
    constexpr unsigned int unchanged = 0xFFFFFFFF;
    FileStatus now;
    int error = file.Status(now);
    if (error == 0 && now.Owner != old.Owner) {
        error = ::fchown(file.Descriptor(), old.Owner, unchanged) == 0 ? 0 : errno;
    }
    if (error == 0 && now.Group != old.Group) {
        error = ::fchown(file.Descriptor(), unchanged, old.Group) == 0 ? 0 : errno;
    }
    return error;
}

bool MayKeepSetIdBits(const FileStatus& old) noexcept {
    return ::geteuid() == 0 || ::geteuid() == old.Owner;
}

}  // namespace

// The mode last: giving a file away clears some of its bits, and an access list sets some.
int TakeAttributes(const File& file, const std::string& path, const FileStatus& old) {
    int error = TakeOwnerAndGroup(file, old);
    if (error == 0) {
        error = TakeAllExtended(file.Descriptor(), path);
    }
    const unsigned int mode = MayKeepSetIdBits(old) ? old.Mode : old.Mode & ~setIdBits;
    if (error == 0 && ::fchmod(file.Descriptor(), mode) != 0) {
        error = errno;
    }
    FileStatus now;
    if (error == 0) {
        error = file.Status(now);
    }
    // The system drops a set-group bit without a word where the group is not the process's own.
    return error == 0 && now.Mode != mode ? EPERM : error;
}

int KeepSetIdBits(const File& file, const FileStatus& old) noexcept {
    const bool lost = (old.Mode & setIdBits) != 0 && MayKeepSetIdBits(old);
    return lost && ::fchmod(file.Descriptor(), old.Mode) != 0 ? errno : 0;
}

}  // namespace PLATFORM::detail
