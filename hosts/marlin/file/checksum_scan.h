// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace HOST {

/// The bytes of a checksum trailer, least significant byte first.
[[nodiscard]] std::string TrailerOf(unsigned int crc);
/// The number that such bytes are, as hexadecimal digits.
[[nodiscard]] std::string HexText(std::string_view trailer);

/// The findings of one walk through the bytes of a file, about the checksum trailer at its end.
/// The walk keeps no more than the last bytes, so that files of any size cost the same memory.
class ChecksumScan {
public:
    static constexpr std::size_t TrailerSize = 4;

    /// Stores the next bytes, as many as it is asked for unless the file ends; returns how many.
    using Reader = std::function<std::size_t(char*, std::size_t)>;

    explicit ChecksumScan(const Reader& read);

    [[nodiscard]] std::uint64_t Size() const noexcept { return m_Before + m_Last.size(); }
    /// The trailer that would seal the file.
    [[nodiscard]] std::string Trailer() const { return TrailerWithout(0); }
    /// The last four bytes, of a file that has them.
    [[nodiscard]] std::string Stored() const;
    /// The trailer of all bytes before those.
    [[nodiscard]] std::string Computed() const { return TrailerWithout(TrailerSize); }
    [[nodiscard]] bool IsWhole() const;
    /// How many bytes of the trailer's end are missing, or 0 when that does not show.
    [[nodiscard]] std::size_t NumMissing() const;
    /// How many bytes, up to 64 KiB, follow a whole checksummed file at the start, or 0 for none.
    [[nodiscard]] std::size_t NumExtra() const;

private:
    [[nodiscard]] std::string TrailerWithout(std::size_t numLast) const;
    [[nodiscard]] bool EndsInTrailer(std::size_t length) const;

    std::string m_Last;          // bytes at the end: 128 KiB or more, or the whole file
    std::uint64_t m_Before = 0;  // how many come before them
    unsigned int m_State;        // the register of the checksum after those
};

}  // namespace HOST
