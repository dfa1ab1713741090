// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/keywords/detail/name_words.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace MARLINSUITE {

/// A name, a piece of a text, and its hash (`HashOfWords`).
struct ScannedName {
    std::string_view Text;
    unsigned int Hash = 0;
};

/// Walks over the names that stand between "%" characters in a text, which must outlive it.
class KeywordScanner {
public:
    explicit KeywordScanner(std::string_view text) noexcept : m_Rest(text) {}

    /// The next name; without a byte when there is none left.
    [[nodiscard]] ScannedName Next() noexcept {
        for (;;) {
            const std::size_t opening = m_Rest.find('%');
            if (opening == std::string_view::npos) {
                return {};
            }
            m_Rest.remove_prefix(opening + 1);
            const ScannedName name = NameInFront();
            const std::size_t length = name.Text.size();
            if (length == m_Rest.size()) {
                return {};
            }
            const bool closed = m_Rest[length] == '%';
            m_Rest.remove_prefix(length + 1);
            if (closed && length > 0) {
                return name;
            }
        }
    }

private:
    // The highest bit of each byte that is 0, and perhaps of some above the lowest such byte.
    [[nodiscard]] static constexpr std::uint64_t ZeroBytes(std::uint64_t word) noexcept {
        return (word - 0x0101010101010101U) & ~word & 0x8080808080808080U;
    }

    // The same for the bytes that end a name.
    [[nodiscard]] static constexpr std::uint64_t EndingBytes(std::uint64_t word) noexcept {
        constexpr std::uint64_t all = 0x0101010101010101U;
        return ZeroBytes(word) | ZeroBytes(word ^ all * '%') | ZeroBytes(word ^ all * '\n') |
               ZeroBytes(word ^ all * '\r');
    }

    // What stands before the first byte that ends a name, or all of the text. The zeros that
    // `WordAt` puts behind the text end the last word.
    [[nodiscard]] ScannedName NameInFront() const noexcept {
        WordHash hash;
        for (std::size_t position = 0;; position += WordSize) {
            const std::uint64_t word = WordAt(m_Rest, position);
            if (const std::uint64_t endings = EndingBytes(word)) {
                const int bytes = std::countr_zero(endings) / 8;
                hash.Add(word & ((std::uint64_t{1} << 8 * bytes) - 1));
                const std::size_t length = position + static_cast<std::size_t>(bytes);
                return {m_Rest.substr(0, length), hash.Value()};
            }
            hash.Add(word);
        }
    }

    std::string_view m_Rest;
};

}  // namespace MARLINSUITE
