// SPDX-License-Identifier: MIT
#include <marlin/core/crc32.h>

#include <libdeflate.h>

// libdeflate takes and returns the inverted register, and starts anew for a null pointer, which
// may be that of an empty text.
unsigned int CRC32::Update(unsigned int state, const void* bytes, std::size_t size) noexcept {
    return size == 0 ? state : ~libdeflate_crc32(~state, bytes, size);
}
