// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Names taken eight bytes at a time.
namespace MARLINSUITE {

inline constexpr std::size_t WordSize = sizeof(std::uint64_t);

/// The bytes of a text from a position on, the first one lowest; zeros behind its end.
[[nodiscard]] inline std::uint64_t WordAt(std::string_view text, std::size_t position) noexcept {
    const std::size_t left = text.size() - position;
    std::uint64_t word = 0;
    if (left >= WordSize) {
        std::memcpy(&word, text.data() + position, WordSize);
    } else if (left > 0) {
        std::memcpy(&word, text.data() + position, left);
    }
    if constexpr (std::endian::native == std::endian::big) {
        word = __builtin_bswap64(word);
    }
    return word;
}

/// A hash of names, fed with their whole words and last with the rest, which may have no byte.
class WordHash {
public:
    void Add(std::uint64_t word) noexcept {
        m_State = (m_State ^ word) * Factor;
        m_State ^= m_State >> 32;
    }
    [[nodiscard]] unsigned int Value() const noexcept {
        return static_cast<unsigned int>(m_State * Factor >> 32);
    }

private:
    // 2^64 divided by the golden ratio: neighbouring words land far from each other.
    static constexpr std::uint64_t Factor = 0x9E3779B97F4A7C15U;

    std::uint64_t m_State = 0;
};

[[nodiscard]] inline unsigned int HashOfWords(std::string_view name) noexcept {
    WordHash hash;
    std::size_t position = 0;
    for (; name.size() - position >= WordSize; position += WordSize) {
        hash.Add(WordAt(name, position));
    }
    hash.Add(WordAt(name, position));
    return hash.Value();
}

/// Equality. Names are short: most end within the first comparisons, without a call.
[[nodiscard]] inline bool SameWords(std::string_view a, std::string_view b) noexcept {
    if (a.size() != b.size() || a.size() < WordSize) {
        return a == b;
    }
    const std::size_t last = a.size() - WordSize;
    for (std::size_t position = 0; position < last; position += WordSize) {
        if (WordAt(a, position) != WordAt(b, position)) {
            return false;
        }
    }
    return WordAt(a, last) == WordAt(b, last);
}

}  // namespace MARLINSUITE
