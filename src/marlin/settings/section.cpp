// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/settings/detail/name_hash.h>
#include <marlin/settings/section.h>

#include <algorithm>
#include <cassert>
#include <utility>

// Made before the objects of hosts and of the library's other sources, destroyed after them.
[[gnu::init_priority(
    MARLINSUITE::detail::LoadComposites)]] const HashedString Section::m_ChecksumName("$CHECKSUM$");
[[gnu::init_priority(MARLINSUITE::detail::LoadComposites)]] const SectionKey Section::m_ErrorKey(
    "");

void Section::SetComments(const char* comments) {
    if (comments) {
        m_Comments.Set(comments);
    }
}

const SectionKey* Section::FindKey(std::string_view name, unsigned int hash) const noexcept {
    return m_Keys.FindIf([=](const SectionKey& key) { return key.GetName().Is(name, hash); });
}

const SectionKey* Section::FindKey(std::string_view name) const noexcept {
    return FindKey(name, MARLINSUITE::HashOfName(name));
}

bool Section::HasKey(const SectionKey& key) const noexcept {
    return FindKey(*key.GetName(), key.GetName().HashValue()) != nullptr;
}

bool Section::HasKey(const char* name) const noexcept {
    return FindKey(name) != nullptr;
}

bool Section::HasKey(const std::string& name) const noexcept {
    return FindKey(name) != nullptr;
}

bool Section::AddKey(const SectionKey& key) {
    m_Keys.emplace_back(key);
    return true;
}

bool Section::AddKey(SectionKey&& key) {
    m_Keys.emplace_back(std::move(key));
    return true;
}

bool Section::AddKey(const char* name) {
    m_Keys.emplace_back(name);
    return true;
}

bool Section::AddKey(const std::string& name) {
    m_Keys.emplace_back(name);
    return true;
}

Section& Section::operator+=(const SectionKey& key) {
    AddKey(key);
    return *this;
}

Section& Section::operator+=(const char* name) {
    AddKey(name);
    return *this;
}

Section& Section::operator+=(const std::string& name) {
    AddKey(name);
    return *this;
}

SectionKey& Section::KeyOrNew(std::string_view name) {
    if (const SectionKey* const key = FindKey(name)) {
        return const_cast<SectionKey&>(*key);  // of this section, which is not const here
    }
    return m_Keys.emplace_back(HashedString(name), std::string_view(), std::string_view());
}

SectionKey& Section::operator[](const std::string& name) {
    return KeyOrNew(name);
}

SectionKey& Section::operator[](const char* name) {
    return KeyOrNew(name);
}

const SectionKey& Section::operator[](const std::string& name) const noexcept {
    const SectionKey* const key = FindKey(name);
    return key ? *key : m_ErrorKey;
}

const SectionKey& Section::operator[](const char* name) const noexcept {
    const SectionKey* const key = FindKey(name);
    return key ? *key : m_ErrorKey;
}

SectionKey& Section::operator[](int position) noexcept {
    assert(position >= 0 && position < NumKeys());
    return m_Keys[static_cast<std::size_t>(position)];
}

const SectionKey& Section::operator[](int position) const noexcept {
    assert(position >= 0 && position < NumKeys());
    return m_Keys[static_cast<std::size_t>(position)];
}

bool Section::RemoveKeyNamed(std::string_view name, unsigned int hash) {
    const auto found = std::ranges::find_if(
        m_Keys, [&](const SectionKey& key) { return key.GetName().Is(name, hash); });
    if (found == m_Keys.end()) {
        return false;
    }
    m_Keys.erase(found);
    return true;
}

bool Section::RemoveKey(const SectionKey& key) {
    return RemoveKeyNamed(*key.GetName(), key.GetName().HashValue());
}

bool Section::RemoveKey(const char* name) {
    return RemoveKeyNamed(name, HashedString::ComputeHashValue(name));
}

bool Section::RemoveKey(const std::string& name) {
    return RemoveKeyNamed(name, HashedString::ComputeHashValue(name));
}

Section& Section::operator<<(const Section& other) {
    const std::size_t count = other.m_Keys.size();  // fixed, should other be this section
    for (std::size_t i = 0; i < count; ++i) {
        m_Keys.emplace_back(other.m_Keys[i]);
    }
    return *this;
}

unsigned int Section::ComputeChecksum() const noexcept {
    CRCChecksum checksum;
    for (const SectionKey& key : m_Keys) {
        if (key.GetName() != m_ChecksumName) {
            checksum += key.GetValue();
            checksum += *key.GetName();
        }
    }
    return checksum.Value();
}

void Section::AddChecksum() {
    KeyOrNew(*m_ChecksumName) << ComputeChecksum();
}

bool Section::IsModified() const noexcept {
    const SectionKey* const key = FindKey(*m_ChecksumName, m_ChecksumName.HashValue());
    unsigned int stored = 0;
    return !key || !MARLINSUITE::ParseNumber(key->GetValue(), stored) ||
           stored != ComputeChecksum();
}

void Section::GetWriteOffsets(int& name, int& value) const noexcept {
    std::size_t longestName = 0;
    std::size_t longestValue = 0;
    for (const SectionKey& key : m_Keys) {
        longestName = std::max(longestName, key.GetName()->size());
        longestValue = std::max(longestValue, key.GetValue().size());
    }
    name = static_cast<int>(longestName);
    value = static_cast<int>(longestValue);
}
