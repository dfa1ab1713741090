// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

namespace PLATFORM {

/// Owns an open file of the operating system, or none. Results of 0 mean success, others are
/// the system's error numbers; interrupted calls are taken up again.
class FileDescriptor {
public:
    FileDescriptor() noexcept = default;
    explicit FileDescriptor(int descriptor) noexcept : m_Descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_Descriptor(std::exchange(other.m_Descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor() { static_cast<void>(Close()); }

    /// Opens with the system's flags and, for a new file, its mode bits before the umask.
    [[nodiscard]] int Open(const char* path, int flags, unsigned int mode = 0666) noexcept;
    int Close() noexcept;

    [[nodiscard]] bool IsOpen() const noexcept { return m_Descriptor >= 0; }
    [[nodiscard]] int Get() const noexcept { return m_Descriptor; }

    /// Reads up to `size` bytes; `count` is 0 at the end of the file.
    [[nodiscard]] int Read(char* buffer, std::size_t size, std::size_t& count) const noexcept;
    /// Writes all bytes at the position.
    [[nodiscard]] int WriteAll(std::string_view bytes) const noexcept;

private:
    int m_Descriptor = -1;
};

}  // namespace PLATFORM
