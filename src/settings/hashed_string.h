// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>
#include <string_view>

#include <marlin/platform/export.h>

/// A case-insensitive name: a text, kept as supplied, with a 32-bit hash of it that ignores the
/// case of ASCII letters. Names are equal when hash and text are, case ignored; they are ordered
/// by hash first, so the order serves sorted containers only. Default-made it is empty with hash
/// 0, which differs from the hash of an empty text that was supplied.
class MARLIN_API HashedString {
public:
    constexpr HashedString() noexcept = default;
    HashedString(const char* text);
    HashedString(const std::string& text);
    explicit HashedString(std::string_view text);

    /// CRC-32 over the bytes, each widened from a signed char, upper-cased and fed as four bytes.
    [[nodiscard]] static unsigned int ComputeHashValue(const std::string& text) noexcept;
    [[nodiscard]] static unsigned int ComputeHashValue(std::string_view text) noexcept;
    [[nodiscard]] static unsigned int ComputeHashValue(const char* text) noexcept;

    [[nodiscard]] operator unsigned int() const noexcept { return m_Hash; }
    [[nodiscard]] unsigned int HashValue() const noexcept { return m_Hash; }
    [[nodiscard]] operator const std::string&() const noexcept { return m_Text; }
    [[nodiscard]] const std::string& operator*() const noexcept { return m_Text; }
    [[nodiscard]] const std::string* operator->() const noexcept { return &m_Text; }
    [[nodiscard]] const char* c_str() const noexcept { return m_Text.c_str(); }
    [[nodiscard]] bool empty() const noexcept { return m_Text.empty(); }

    /// Whether this is the name `text`, whose hash the caller knows: no name need be made.
    [[nodiscard]] bool Is(std::string_view text, unsigned int hash) const noexcept {
        return m_Hash == hash && SameText(text);
    }

    bool operator==(const HashedString& other) const noexcept {
        return Is(other.m_Text, other.m_Hash);
    }
    bool operator!=(const HashedString& other) const noexcept { return !(*this == other); }
    bool operator<(const HashedString& other) const noexcept;
    bool operator>(const HashedString& other) const noexcept;

private:
    unsigned int ComputeHashValue() noexcept;
    [[nodiscard]] bool SameText(std::string_view text) const noexcept;

    std::string m_Text;
    unsigned int m_Hash = 0;
};
