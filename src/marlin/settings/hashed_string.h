// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

/// A case-insensitive name: a text, kept as supplied, with a 32-bit hash of it that ignores the
/// case of ASCII letters. Names are equal when hash and text are, case ignored; they are ordered
/// by hash first, so the order serves sorted containers only. Default-made it is empty with hash
/// 0. The text never changes; copies share it, so the many keys of one name in a settings file
/// hold it once.
class MARLIN_API HashedString {
public:
    constexpr HashedString() noexcept = default;
    HashedString(const char* text) : HashedString(std::string_view(text)) {}
    HashedString(const std::string& text) : HashedString(std::string_view(text)) {}
    explicit HashedString(std::string_view text);

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
    [[nodiscard]] operator const std::string&() const noexcept { return **this; }
    [[nodiscard]] const std::string& operator*() const noexcept {
        return m_Text ? *m_Text : emptyText;
    }
    [[nodiscard]] const std::string* operator->() const noexcept { return &**this; }
    [[nodiscard]] const char* c_str() const noexcept { return (*this)->c_str(); }
    [[nodiscard]] bool empty() const noexcept { return !m_Text; }

    /// Whether this is the name `text`, whose hash the caller knows: no name need be made.
    [[nodiscard]] bool Is(std::string_view text, unsigned int hash) const noexcept {
        return m_Hash == hash && SameText(text);
    }

    bool operator==(const HashedString& other) const noexcept {
        return m_Hash == other.m_Hash && (m_Text == other.m_Text || SameText(*other));
    }
    bool operator!=(const HashedString& other) const noexcept { return !(*this == other); }
    bool operator<(const HashedString& other) const noexcept;
    bool operator>(const HashedString& other) const noexcept;

private:
    static const std::string emptyText;

    // Nearly always the same letters in the same case.
    [[nodiscard]] bool SameText(std::string_view text) const noexcept {
        return std::string_view(**this) == text || SameButForCase(text);
    }
    [[nodiscard]] bool SameButForCase(std::string_view text) const noexcept;

    std::shared_ptr<const std::string> m_Text;  // none for an empty text
    unsigned int m_Hash = 0;
};
