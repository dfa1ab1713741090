// SPDX-License-Identifier: MIT
#include "checksum_scan.h"

#include <marlin/core/crc32.h>

#include <algorithm>
#include <utility>

namespace HOST {

std::string TrailerOf(unsigned int crc) {
    std::string trailer;
    for (std::size_t i = 0; i < ChecksumScan::TrailerSize; ++i) {
        trailer += static_cast<char>(static_cast<unsigned char>(crc >> (8 * i)));
    }
    return trailer;
}

std::string HexText(std::string_view trailer) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = trailer.size(); i-- > 0;) {
        const auto byte = static_cast<unsigned char>(trailer[i]);
        text += digits[byte >> 4U];
        text += digits[byte & 0x0FU];
    }
    return text;
}

// The checksum covers all pieces but the one read last, since the end of the file decides what
// counts.
ChecksumScan::ChecksumScan(const Reader& read) : m_State(CRC32::Start) {
    constexpr std::size_t pieceSize = 128 * 1024;
    std::string next(pieceSize, '\0');
    m_Last.resize(pieceSize);
    std::size_t lastSize = 0;
    std::size_t nextSize = read(next.data(), pieceSize);
    while (nextSize == pieceSize) {
        m_State = CRC32::Update(m_State, m_Last.data(), lastSize);
        m_Before += lastSize;
        m_Last.swap(next);
        lastSize = nextSize;
        nextSize = read(next.data(), pieceSize);
    }
    m_Last.resize(lastSize);
    m_Last.append(next, 0, nextSize);
}

std::string ChecksumScan::TrailerWithout(std::size_t numLast) const {
    return TrailerOf(~CRC32::Update(m_State, m_Last.data(), m_Last.size() - numLast));
}

bool ChecksumScan::EndsInTrailer(std::size_t length) const {
    return m_Last.ends_with(TrailerWithout(length).substr(0, length));
}

std::string ChecksumScan::Stored() const {
    return m_Last.substr(m_Last.size() - TrailerSize);
}

bool ChecksumScan::IsWhole() const {
    return m_Last.size() >= TrailerSize && EndsInTrailer(TrailerSize);
}

// A single fitting byte would prove nothing: every 256th file has it.
std::size_t ChecksumScan::NumMissing() const {
    for (const std::size_t kept : {3U, 2U}) {
        if (m_Last.size() > kept && EndsInTrailer(kept)) {
            return TrailerSize - kept;
        }
    }
    return 0;
}

// The longest file counts. The search ends early, since among many bytes some would fit by chance,
// and leaves out an empty payload, whose trailer is four zero bytes.
std::size_t ChecksumScan::NumExtra() const {
    constexpr std::size_t searched = 64 * 1024;
    if (m_Last.size() <= TrailerSize + 1) {
        return 0;
    }
    const std::size_t last = m_Last.size() - TrailerSize - 1;  // of the possible payload sizes
    std::size_t size = std::max<std::size_t>(1, last > searched ? last - searched : 0);
    unsigned int state = CRC32::Update(m_State, m_Last.data(), size);
    std::size_t extra = 0;
    for (; size <= last; ++size) {
        std::size_t same = 0;
        while (same < TrailerSize &&
               static_cast<unsigned char>(m_Last[size + same]) == (~state >> (8 * same) & 0xFFU)) {
            ++same;
        }
        if (same == TrailerSize) {
            extra = m_Last.size() - size - TrailerSize;
        }
        state = CRC32::Update(state, m_Last.data() + size, 1);
    }
    return extra;
}

}  // namespace HOST
