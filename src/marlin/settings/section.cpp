// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/settings/detail/named_items.h>
#include <marlin/settings/section.h>

#include <algorithm>
#include <cassert>

using MARLINSUITE::detail::HasNamed;
using MARLINSUITE::detail::NamedOr;
using MARLINSUITE::detail::NamedOrNew;
using MARLINSUITE::detail::RemoveNamed;

// Made before the objects of hosts and of the library's other sources, destroyed after them.
[[gnu::init_priority(
    MARLINSUITE::detail::LoadComposites)]] const HashedString Section::m_ChecksumName("$CHECKSUM$");
[[gnu::init_priority(MARLINSUITE::detail::LoadComposites)]] const SectionKey Section::m_ErrorKey(
    "");

void Section::SetComments(const char* comments) {
    if (comments) {
        m_Comments = comments;
    }
}

bool Section::HasKey(const SectionKey& key) const noexcept {
    return HasNamed(m_Keys, *key.GetName());
}

bool Section::HasKey(const char* name) const noexcept {
    return HasNamed(m_Keys, name);
}

bool Section::HasKey(const std::string& name) const noexcept {
    return HasNamed(m_Keys, name);
}

bool Section::AddKey(const SectionKey& key) {
    m_Keys.emplace_back(key);
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

bool Section::AddKey(std::string_view name, std::string_view value, std::string_view comments) {
    m_Keys.emplace_back(name, value, comments);
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

SectionKey& Section::operator[](const std::string& name) {
    return NamedOrNew(m_Keys, name);
}

SectionKey& Section::operator[](const char* name) {
    return NamedOrNew(m_Keys, name);
}

const SectionKey& Section::operator[](const std::string& name) const noexcept {
    return NamedOr(m_Keys, name, m_ErrorKey);
}

const SectionKey& Section::operator[](const char* name) const noexcept {
    return NamedOr(m_Keys, name, m_ErrorKey);
}

SectionKey& Section::operator[](int position) noexcept {
    assert(position >= 0 && position < NumKeys());
    return m_Keys[static_cast<std::size_t>(position)];
}

const SectionKey& Section::operator[](int position) const noexcept {
    assert(position >= 0 && position < NumKeys());
    return m_Keys[static_cast<std::size_t>(position)];
}

bool Section::RemoveKey(const SectionKey& key) {
    // A copy, since the name may be that of the key that goes.
    return RemoveNamed(m_Keys, std::string(*key.GetName()));
}

bool Section::RemoveKey(const char* name) {
    return RemoveNamed(m_Keys, name);
}

bool Section::RemoveKey(const std::string& name) {
    return RemoveNamed(m_Keys, name);
}

Section& Section::operator<<(const Section& other) {
    const std::size_t count = other.m_Keys.size();  // fixed, since other may be this section
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
    NamedOrNew(m_Keys, *m_ChecksumName) << ComputeChecksum();
}

bool Section::IsModified() const noexcept {
    // A missing key has no number, so it counts as modified too.
    unsigned int stored = 0;
    return !MARLINSUITE::ParseNumber(NamedOr(m_Keys, *m_ChecksumName, m_ErrorKey).GetValue(),
                                     stored) ||
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

void Section::AppendTo(std::string& text) const {
    int longestName = 0;
    int longestValue = 0;
    GetWriteOffsets(longestName, longestValue);
    MARLINSUITE::detail::SettingsWriter writer(text);
    writer.BeginSection(*m_Name, m_Comments, static_cast<std::size_t>(longestName),
                        static_cast<std::size_t>(longestValue));
    for (const SectionKey& key : m_Keys) {
        writer.AddKey(*key.GetName(), key.GetValue(), key.GetComments());
    }
    writer.EndSection();
}
