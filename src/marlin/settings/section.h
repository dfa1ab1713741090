// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/settings/hashed_string.h>
#include <marlin/settings/section_key.h>
#include <marlin/settings/steady_list.h>

#include <span>
#include <string>
#include <string_view>

/// A named, ordered group of keys: the unit in which records write and read themselves. Several
/// keys may have one name, of which look-ups find the first; keys without a name are comment
/// lines. Look-ups ignore case and walk the keys in order. A reference to a key stays good while
/// keys are appended. A section without a name is not valid. A value.
///
/// A section may carry a checksum over its keys' values and names, in their order, in a key
/// named "$CHECKSUM$"; comments and the section's own name are not covered.
///
/// @code
/// Section section("Grid");
/// section["Interval"] << 2.5;
/// double interval = 1.0;
/// double offset = 1.0;
/// section["interval"] >> interval;
/// std::as_const(section)["Offset"] >> offset;  // of a missing key, leaves the target
/// assert(interval == 2.5 && offset == 1.0 && section.NumKeys() == 1);
/// @endcode
class MARLIN_API Section {
public:
    /// The name of the checksum key, "$CHECKSUM$".
    static const HashedString m_ChecksumName;
    /// Returned by a const look-up of a missing key: no name, no value, not valid.
    static const SectionKey m_ErrorKey;

    Section(const char* name) : m_Name(name) {}
    Section(const std::string& name) : m_Name(name) {}
    explicit Section(const HashedString& name) : m_Name(name) {}

    [[nodiscard]] const HashedString& GetName() const noexcept { return m_Name; }
    void SetName(const HashedString& name) { m_Name = name; }
    [[nodiscard]] const std::string& GetComments() const noexcept { return m_Comments; }
    void SetComments(const std::string& comments) { m_Comments = comments; }
    /// A null pointer is ignored.
    void SetComments(const char* comments);
    [[nodiscard]] bool IsValid() const noexcept { return !m_Name.empty(); }
    [[nodiscard]] int NumKeys() const noexcept { return static_cast<int>(m_Keys.size()); }
    /// The keys in their order, to walk over.
    [[nodiscard]] const MARLINSUITE::SteadyList<SectionKey>& Keys() const noexcept {
        return m_Keys;
    }
    /// Removes all keys; name and comments stay.
    void Clear() noexcept { m_Keys.clear(); }

    /// Only the name of a key given is compared.
    [[nodiscard]] bool HasKey(const SectionKey& key) const noexcept;
    [[nodiscard]] bool HasKey(const char* name) const noexcept;
    [[nodiscard]] bool HasKey(const std::string& name) const noexcept;

    /// Appends at the end, whether or not a key of that name is there; true.
    bool AddKey(const SectionKey& key);
    bool AddKey(const char* name);
    bool AddKey(const std::string& name);
    bool AddKey(std::string_view name, std::string_view value, std::string_view comments);
    /// Appends keys, which are moved out of there, in no more memory than they need.
    void AddKeys(std::span<SectionKey> keys) { m_Keys.Append(keys); }
    Section& operator+=(const SectionKey& key);
    Section& operator+=(const char* name);
    Section& operator+=(const std::string& name);

    /// The first key of that name; when there is none, an empty one is appended.
    SectionKey& operator[](const std::string& name);
    SectionKey& operator[](const char* name);
    /// The first key of that name, or `m_ErrorKey`.
    [[nodiscard]] const SectionKey& operator[](const std::string& name) const noexcept;
    [[nodiscard]] const SectionKey& operator[](const char* name) const noexcept;
    /// The position must lie in 0 to `NumKeys()` - 1.
    [[nodiscard]] SectionKey& operator[](int position) noexcept;
    [[nodiscard]] const SectionKey& operator[](int position) const noexcept;

    /// Removes the first key of that name; false when there is none.
    bool RemoveKey(const SectionKey& key);
    bool RemoveKey(const char* name);
    bool RemoveKey(const std::string& name);

    /// Appends copies of all keys of the other section, which may be this one.
    Section& operator<<(const Section& other);

    /// The checksum over every key but the checksum key itself.
    [[nodiscard]] unsigned int ComputeChecksum() const noexcept;
    /// Stores it under "$CHECKSUM$", in place or at the end.
    void AddChecksum();
    /// True when the stored checksum differs, is unreadable or is missing.
    [[nodiscard]] bool IsModified() const noexcept;

    /// The greatest length in bytes of a key's name and of a key's value; 0 without keys.
    void GetWriteOffsets(int& name, int& value) const noexcept;
    /// Appends the section as a settings file holds it: header, keys in columns, an empty line.
    void AppendTo(std::string& text) const;

    // Only the names are compared.
    bool operator==(const Section& other) const noexcept { return m_Name == other.m_Name; }
    bool operator!=(const Section& other) const noexcept { return m_Name != other.m_Name; }
    bool operator<(const Section& other) const noexcept { return m_Name < other.m_Name; }
    bool operator>(const Section& other) const noexcept { return m_Name > other.m_Name; }

private:
    HashedString m_Name;
    std::string m_Comments;
    MARLINSUITE::SteadyList<SectionKey> m_Keys;
};
