// SPDX-License-Identifier: MIT
#include <marlin/base/crc32.h>
#include <marlin/base/text_functions.h>
#include <marlin/platform/text/ascii.h>
#include <marlin/settings/hashed_string.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace {

// The register is linear in what it is fed: that of a whole text is the exclusive or of what
// each character leaves behind on its own. Names up to this length are hashed by look-ups that
// do not wait for one another.
constexpr std::size_t tableLength = 32;

constexpr unsigned int FedCharacter(unsigned char byte) {
    const char upper = PLATFORM::ToUpper(static_cast<char>(byte));
    return static_cast<unsigned int>(static_cast<int>(static_cast<signed char>(upper)));
}

// [k][c]: what the character c leaves in the register when k characters follow it.
constexpr auto contributions = [] {
    std::array<CRC32::Table, tableLength> tables{};
    for (unsigned int c = 0; c < 256; ++c) {
        unsigned int state = CRC32::UpdateWord(0, FedCharacter(static_cast<unsigned char>(c)));
        for (CRC32::Table& table : tables) {
            table[c] = state;
            state = CRC32::UpdateWord(state, 0);
        }
    }
    return tables;
}();

// [n]: what the start value has become after n characters.
constexpr auto startValues = [] {
    std::array<unsigned int, tableLength + 1> values{};
    unsigned int state = CRC32::Start;
    for (unsigned int& value : values) {
        value = state;
        state = CRC32::UpdateWord(state, 0);
    }
    return values;
}();

unsigned int HashOfShortText(std::string_view text) noexcept {
    unsigned int state = startValues[text.size()];
    std::size_t following = text.size();
    for (const char c : text) {
        state ^= contributions[--following][static_cast<unsigned char>(c)];
    }
    return ~state;
}

unsigned int HashOfLongText(std::string_view text) noexcept {
    unsigned int state = CRC32::Start;
    for (const char c : text) {
        state = CRC32::UpdateWord(state, FedCharacter(static_cast<unsigned char>(c)));
    }
    return ~state;
}

}  // namespace

HashedString::HashedString(const char* text) : m_Text(text) {
    ComputeHashValue();
}

HashedString::HashedString(const std::string& text) : m_Text(text) {
    ComputeHashValue();
}

HashedString::HashedString(std::string_view text) : m_Text(text) {
    ComputeHashValue();
}

unsigned int HashedString::ComputeHashValue(std::string_view text) noexcept {
    return text.size() <= tableLength ? HashOfShortText(text) : HashOfLongText(text);
}

unsigned int HashedString::ComputeHashValue(const std::string& text) noexcept {
    return ComputeHashValue(std::string_view(text));
}

unsigned int HashedString::ComputeHashValue(const char* text) noexcept {
    return ComputeHashValue(std::string_view(text));
}

unsigned int HashedString::ComputeHashValue() noexcept {
    return m_Hash = ComputeHashValue(std::string_view(m_Text));
}

bool HashedString::SameText(std::string_view text) const noexcept {
    return icompare(m_Text, text);
}

bool HashedString::operator<(const HashedString& other) const noexcept {
    return m_Hash != other.m_Hash ? m_Hash < other.m_Hash : Smaller(m_Text, other.m_Text);
}

bool HashedString::operator>(const HashedString& other) const noexcept {
    return m_Hash != other.m_Hash ? m_Hash > other.m_Hash : Greater(m_Text, other.m_Text);
}
