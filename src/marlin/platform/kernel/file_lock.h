// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cerrno>
#include <string>

namespace PLATFORM {

/// A lock on a file, or none. While it lives no other lock of any process has that file; programs
/// that take no locks are not kept from it. Who reads a file, changes the text and replaces the
/// file takes the lock before reading, so that no change of another program in between is lost.
/// For one thread at a time.
/// @code
/// PLATFORM::FileLock lock;
/// PLATFORM::FileLock second;
/// const int error = lock.Take("chart.ini", 0);
/// const int locked = second.Take("chart.ini", 0);
/// assert(error == 0 && locked == EWOULDBLOCK);
/// @endcode
class MARLIN_API FileLock {
public:
    FileLock() noexcept = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock() { Release(); }

    /// Locks the file that the path leads to now, which is not the one at the start of the wait
    /// if that was replaced; without a file, its folder. Returns 0, or EWOULDBLOCK when another
    /// lock had the file for so long. Where nothing can be locked, such as a pipe or a file on a
    /// file system without locks, it returns 0 and holds none.
    [[nodiscard]] int Take(const std::string& path, unsigned int milliseconds);
    void Release() noexcept;

private:
    int m_Descriptor = -1;
};

}  // namespace PLATFORM
