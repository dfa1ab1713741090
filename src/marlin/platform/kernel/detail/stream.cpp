// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/stream.h>

namespace PLATFORM::detail {

bool SeekFromEnd(std::FILE* file, std::int64_t offset) noexcept {
    return ::fseeko(file, offset, SEEK_END) == 0;
}

std::int64_t PositionOf(std::FILE* file) noexcept {
    return ::ftello(file);
}

}  // namespace PLATFORM::detail
