// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/settings/detail/name_hash.h>
#include <marlin/settings/hashed_string.h>

// Before all names and keys that are made at load.
[[gnu::init_priority(MARLINSUITE::detail::LoadValues)]] const std::string HashedString::emptyText;

HashedString::HashedString(std::string_view text)
    : m_Text(text.empty() ? nullptr : std::make_shared<const std::string>(text)),
      m_Hash(ComputeHashValue(text)) {}

unsigned int HashedString::ComputeHashValue(std::string_view text) noexcept {
    return MARLINSUITE::HashOfName(text);
}

bool HashedString::SameButForCase(std::string_view text) const noexcept {
    return icompare(**this, text);
}

bool HashedString::operator<(const HashedString& other) const noexcept {
    return m_Hash != other.m_Hash ? m_Hash < other.m_Hash : Smaller(**this, *other);
}

bool HashedString::operator>(const HashedString& other) const noexcept {
    return m_Hash != other.m_Hash ? m_Hash > other.m_Hash : Greater(**this, *other);
}
