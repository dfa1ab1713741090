// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/file_descriptor.h>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace PLATFORM {

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
        static_cast<void>(Close());
        m_Descriptor = std::exchange(other.m_Descriptor, -1);
    }
    return *this;
}

int FileDescriptor::Open(const char* path, int flags, unsigned int mode) noexcept {
    static_cast<void>(Close());
    do {
        m_Descriptor = ::open(path, flags | O_CLOEXEC, mode);
    } while (m_Descriptor < 0 && errno == EINTR);
    return m_Descriptor < 0 ? errno : 0;
}

int FileDescriptor::Close() noexcept {
    const int descriptor = std::exchange(m_Descriptor, -1);
    return descriptor >= 0 && ::close(descriptor) != 0 && errno != EINTR ? errno : 0;
}

int FileDescriptor::Read(char* buffer, std::size_t size, std::size_t& count) const noexcept {
    ssize_t result = 0;
    do {
        result = ::read(m_Descriptor, buffer, size);
    } while (result < 0 && errno == EINTR);
    count = result > 0 ? static_cast<std::size_t>(result) : 0;
    return result < 0 ? errno : 0;
}

int FileDescriptor::WriteAll(std::string_view bytes) const noexcept {
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_Descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

}  // namespace PLATFORM
