// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/crc32.h>

#include <string_view>

/// A 32-bit checksum accumulator: CRC-32 over the bytes fed. Integers feed four bytes, low
/// byte first; a string feeds its bytes and no end mark. Its value is 0 before any byte.
/// @code
/// CRCChecksum checksum;
/// checksum += "12345";
/// checksum += "6789";
/// assert(checksum.Value() == 0xCBF43926);
/// @endcode
class CRCChecksum {
public:
    constexpr CRCChecksum() noexcept = default;

    constexpr CRCChecksum& operator+=(int value) noexcept {
        return *this += static_cast<unsigned int>(value);
    }
    constexpr CRCChecksum& operator+=(unsigned int value) noexcept {
        m_Register = CRC32::UpdateWord(m_Register, value);
        return *this;
    }
    CRCChecksum& operator+=(std::string_view text) noexcept {
        m_Register = CRC32::Update(m_Register, text.data(), text.size());
        return *this;
    }

    [[nodiscard]] constexpr unsigned int Value() const noexcept { return ~m_Register; }

private:
    unsigned int m_Register = CRC32::Start;
};
