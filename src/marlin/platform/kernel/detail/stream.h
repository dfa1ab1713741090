// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

/// Files of the standard I/O library, for contracts that speak of its modes.
namespace PLATFORM::detail {

/// Closes the file and drops the result: whoever wrote calls `std::fclose` and looks.
struct StreamCloser {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};

using Stream = std::unique_ptr<std::FILE, StreamCloser>;

/// Opens a file with a mode of the standard I/O library: 0 or the system's error number, EISDIR
/// for a folder, which the standard I/O library opens for reading.
[[nodiscard]] int OpenStream(Stream& stream, const std::string& path, const char* mode) noexcept;
/// Moves to an offset from the end, 0 or negative, also in files beyond 2 GiB. False, with
/// `errno`, when there is no such position.
[[nodiscard]] bool SeekFromEnd(std::FILE* file, std::int64_t offset) noexcept;
/// The position; -1, with `errno`, for what has none, such as a pipe.
[[nodiscard]] std::int64_t PositionOf(std::FILE* file) noexcept;

}  // namespace PLATFORM::detail
