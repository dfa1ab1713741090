// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/path_links.h>
#include <marlin/platform/kernel/file_lock.h>

#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PLATFORM {

namespace {

// The file itself or, while there is none, the folder in which it would be made. -1 for what has
// no lock: opening a pipe would wake its writer.
int OpenLocked(const std::string& path) {
    struct stat status {};
    std::string locked = path;
    if (::stat(path.c_str(), &status) != 0) {
        if (errno != ENOENT || detail::FollowLinks(locked) != 0) {
            return -1;
        }
        locked = detail::FolderOf(locked);
    } else if (!S_ISREG(status.st_mode)) {
        return -1;
    }
    return ::open(locked.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

// False when the path leads elsewhere by now: whoever had the lock before has replaced the file.
bool IsStillAt(int descriptor, const std::string& path) noexcept {
    struct stat locked {};
    struct stat found {};
    if (::fstat(descriptor, &locked) != 0) {
        return false;
    }
    if (::stat(path.c_str(), &found) != 0) {
        return S_ISDIR(locked.st_mode);
    }
    return found.st_dev == locked.st_dev && found.st_ino == locked.st_ino;
}

int TryLock(int descriptor) noexcept {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
}

}  // namespace

// The system's own wait has no end, hence the tries.
int FileLock::Take(const std::string& path, unsigned int milliseconds) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{5};
    Release();
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        m_Descriptor = OpenLocked(path);
        const int error = m_Descriptor < 0 ? 0 : TryLock(m_Descriptor);
        if (m_Descriptor < 0 || (error == 0 && IsStillAt(m_Descriptor, path))) {
            return 0;
        }
        Release();
        if (error != 0 && error != EWOULDBLOCK && error != EINTR) {
            return 0;
        }
        if (Clock::now() >= end) {
            return EWOULDBLOCK;
        }
        std::this_thread::sleep_for(pause);
    }
}

void FileLock::Release() noexcept {
    if (m_Descriptor >= 0) {
        ::close(std::exchange(m_Descriptor, -1));
    }
}

}  // namespace PLATFORM
