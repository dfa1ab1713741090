// SPDX-License-Identifier: MIT
#include <marlin/core/crc32.h>

#include <libdeflate.h>

namespace CRC32 {

namespace {

// For fewer bytes a call of libdeflate costs more than the tables.
constexpr std::size_t smallSize = 48;

unsigned int UpdateSmall(unsigned int state, const unsigned char* bytes,
                         std::size_t size) noexcept {
    for (; size >= 4; size -= 4, bytes += 4) {
        const unsigned int word = bytes[0] | static_cast<unsigned int>(bytes[1]) << 8 |
                                  static_cast<unsigned int>(bytes[2]) << 16 |
                                  static_cast<unsigned int>(bytes[3]) << 24;
        state = UpdateWord(state, word);
    }
    for (; size > 0; --size, ++bytes) {
        state = (state >> 8) ^ ByteTables[0][(state ^ *bytes) & 0xFFU];
    }
    return state;
}

}  // namespace

unsigned int Update(unsigned int state, const void* bytes, std::size_t size) noexcept {
    if (size < smallSize) {
        return UpdateSmall(state, static_cast<const unsigned char*>(bytes), size);
    }
    // libdeflate takes and returns the inverted register.
    return ~libdeflate_crc32(~state, bytes, size);
}

}  // namespace CRC32
