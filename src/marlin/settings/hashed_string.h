// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// A case-insensitive name: a text, kept as supplied, with a 32-bit hash of it that ignores the
/// case of ASCII letters. Names are equal when hash and text are equal, case ignored. They are
/// ordered by hash first, so the order serves sorted containers only. A default-made name is
/// empty with hash 0, which is not the hash of an empty text. A value.
///
/// @code
/// const HashedString name("BiasMode");
/// assert(name == HashedString("biasmode") && *name == "BiasMode");
/// @endcode
class MARLIN_API HashedString {
public:
    HashedString() noexcept = default;
    HashedString(const char* text) : HashedString(std::string_view(text)) {}
    HashedString(const std::string& text) : HashedString(std::string_view(text)) {}
    explicit HashedString(std::string_view text) : m_Text(text), m_Hash(ComputeHashValue(text)) {}

    /// CRC-32 over the bytes, each widened from a signed char, upper-cased and fed as four bytes.
    [[nodiscard]] static unsigned int ComputeHashValue(const std::string& text) noexcept {
        return ComputeHashValue(std::string_view(text));
    }
    [[nodiscard]] static unsigned int ComputeHashValue(const char* text) noexcept {
        return ComputeHashValue(std::string_view(text));
    }
    [[nodiscard]] static unsigned int ComputeHashValue(std::string_view text) noexcept;

    [[nodiscard]] operator unsigned int() const noexcept { return m_Hash; }
    [[nodiscard]] unsigned int HashValue() const noexcept { return m_Hash; }
    [[nodiscard]] operator const std::string&() const noexcept { return m_Text; }
    [[nodiscard]] const std::string& operator*() const noexcept { return m_Text; }
    [[nodiscard]] const std::string* operator->() const noexcept { return &m_Text; }
    [[nodiscard]] const char* c_str() const noexcept { return m_Text.c_str(); }
    [[nodiscard]] bool empty() const noexcept { return m_Text.empty(); }

    /// Equality with the name `text`, whose hash is known, for look-ups: no name need be made.
    [[nodiscard]] bool Is(std::string_view text, unsigned int hash) const noexcept {
        // Nearly all names of one hash have the same letters in the same case.
        return m_Hash == hash && (m_Text == text || IsSameButForCase(text));
    }

    bool operator==(const HashedString& other) const noexcept {
        return Is(other.m_Text, other.m_Hash);
    }
    bool operator!=(const HashedString& other) const noexcept { return !(*this == other); }
    bool operator<(const HashedString& other) const noexcept;
    bool operator>(const HashedString& other) const noexcept;

private:
    [[nodiscard]] bool IsSameButForCase(std::string_view text) const noexcept;

    std::string m_Text;
    unsigned int m_Hash = 0;
};

// For the standard containers that find names by their hash. The reference leaves it out:
// Doxygen takes a specialisation outside its namespace for an error.
/// @cond
template <>
struct std::hash<HashedString> {
    std::size_t operator()(const HashedString& name) const noexcept { return name.HashValue(); }
};
/// @endcond
