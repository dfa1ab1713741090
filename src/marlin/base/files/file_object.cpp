// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_check.h>
#include <marlin/base/files/detail/settings_reader.h>
#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/base/files/file_object.h>
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/ascii.h>

#include <algorithm>
#include <unordered_set>

namespace {

using MARLINSUITE::LowerCase;

CString TextOf(const std::string& text) {
    return CString(std::string_view(text));
}

}  // namespace

/// Stores the sections and entries of a settings file as they are read.
class FileObject::FileSink {
public:
    explicit FileSink(FileObject& file) noexcept : m_File(file) {}

    bool BeginSection(std::string_view name, std::string_view) {
        if (m_File.FindSection(name)) {
            return false;
        }
        m_Section = &m_File.SectionOrNew(name);
        return true;
    }

    void AddKey(std::string_view name, std::string_view value, std::string_view) {
        if (!name.empty()) {
            Store(*m_Section, name, value, false);
        }
    }

private:
    FileObject& m_File;
    NamedSection* m_Section = nullptr;
};

FileObject::~FileObject() = default;

bool FileObject::SetEntry(const CString& section, const CString& key, const CString& value,
                          int mode) {
    if (section.IsEmpty() || key.IsEmpty()) {
        return false;
    }
    Store(SectionOrNew(section.View()), key.View(), value.View(), mode == REPLACE);
    return true;
}

bool FileObject::FileOpen(const CString& path, unsigned int) {
    Clear();
    const std::string name(path.View());
    FileSink sink(*this);
    // A failure made here is the one that `ErrorString::LastError()` gives.
    const bool done = MARLINSUITE::detail::ReadSettingsFile(name, sink).Result(name).Empty();
    if (!done) {
        Clear();
    }
    return done;
}

std::string FileObject::Text() const {
    std::string text;
    MARLINSUITE::detail::SettingsWriter writer(text);
    for (const NamedSection& section : m_Sections) {
        std::size_t longestName = 0;
        for (const Entry& entry : section.Entries) {
            longestName = std::max(longestName, entry.Key.size());
        }
        writer.BeginSection(section.Name, {}, longestName, 0);
        for (const Entry& entry : section.Entries) {
            writer.AddKey(entry.Key, entry.Value, {});
        }
        writer.EndSection();
    }
    return text;
}

bool FileObject::FileSave(const CString& path, unsigned int) const {
    const std::string name(path.View());
    MARLINSUITE::detail::SettingsCheck check;
    for (const NamedSection& section : m_Sections) {
        check.BeginSection(section.Name, {});
        for (const Entry& entry : section.Entries) {
            check.AddKey(entry.Key, entry.Value, {});
        }
    }
    if (!check.Reason().empty()) {
        ErrorString::RecordFailure(name + ": " + check.Reason());
        return false;
    }
    return MARLINSUITE::ReplaceFile(name, Text()).Empty();
}

bool FileObject::GetFirstSectionEntry(FobjSection& cursor, CString& section) const {
    cursor.Section = 0;
    return GetNextSectionEntry(cursor, section);
}

bool FileObject::GetNextSectionEntry(FobjSection& cursor, CString& section) const {
    if (cursor.Section >= m_Sections.size()) {
        return false;
    }
    section = TextOf(m_Sections[cursor.Section++].Name);
    return true;
}

bool FileObject::GetFirstMapEntry(FobjSection& cursor, const CString& section, CString& key,
                                  CString& value) const {
    const auto found = m_SectionOfName.find(LowerCase(section.View()));
    cursor.MapSection = found == m_SectionOfName.end() ? m_Sections.size() : found->second;
    cursor.Entry = 0;
    return GetNextMapEntry(cursor, key, value);
}

bool FileObject::GetNextMapEntry(FobjSection& cursor, CString& key, CString& value) const {
    if (cursor.MapSection >= m_Sections.size() ||
        cursor.Entry >= m_Sections[cursor.MapSection].Entries.size()) {
        return false;
    }
    const Entry& entry = m_Sections[cursor.MapSection].Entries[cursor.Entry++];
    key = TextOf(entry.Key);
    value = TextOf(entry.Value);
    return true;
}

bool FileObject::HasSection(const CString& section) const {
    return FindSection(section.View()) != nullptr;
}

bool FileObject::GetEntry(const CString& section, const CString& key, CString& value) const {
    const NamedSection* const found = FindSection(section.View());
    if (!found) {
        return false;
    }
    const auto entry = found->FirstOfKey.find(LowerCase(key.View()));
    if (entry == found->FirstOfKey.end()) {
        return false;
    }
    value = TextOf(found->Entries[entry->second].Value);
    return true;
}

void FileObject::RemoveEntries(const CString& section, const std::vector<CString>& keys) {
    const auto found = m_SectionOfName.find(LowerCase(section.View()));
    if (found == m_SectionOfName.end()) {
        return;
    }
    std::unordered_set<std::string> removed;
    for (const CString& key : keys) {
        removed.insert(LowerCase(key.View()));
    }
    std::deque<Entry>& entries = m_Sections[found->second].Entries;
    std::erase_if(entries,
                  [&](const Entry& entry) { return removed.contains(LowerCase(entry.Key)); });
    std::unordered_map<std::string, std::size_t>& firstOfKey = m_Sections[found->second].FirstOfKey;
    firstOfKey.clear();
    for (std::size_t position = 0; position < entries.size(); ++position) {
        firstOfKey.try_emplace(LowerCase(entries[position].Key), position);
    }
}

bool FileObject::RemoveSection(const CString& section) {
    const auto found = m_SectionOfName.find(LowerCase(section.View()));
    if (found == m_SectionOfName.end()) {
        return false;
    }
    const std::size_t removed = found->second;
    m_SectionOfName.erase(found);
    for (auto& [name, position] : m_SectionOfName) {
        position -= position > removed ? 1U : 0U;
    }
    m_Sections.erase(m_Sections.begin() + static_cast<std::ptrdiff_t>(removed));
    return true;
}

void FileObject::Clear() {
    m_Sections.clear();
    m_SectionOfName.clear();
}

const FileObject::NamedSection* FileObject::FindSection(std::string_view name) const {
    const auto found = m_SectionOfName.find(LowerCase(name));
    return found == m_SectionOfName.end() ? nullptr : &m_Sections[found->second];
}

FileObject::NamedSection& FileObject::SectionOrNew(std::string_view name) {
    const auto [found, isNew] = m_SectionOfName.try_emplace(LowerCase(name), m_Sections.size());
    if (isNew) {
        m_Sections.emplace_back().Name = name;
    }
    return m_Sections[found->second];
}

void FileObject::Store(NamedSection& section, std::string_view key, std::string_view value,
                       bool replace) {
    const auto [first, isNew] =
        section.FirstOfKey.try_emplace(LowerCase(key), section.Entries.size());
    if (!isNew && replace) {
        section.Entries[first->second].Value = value;
    } else {
        section.Entries.push_back({std::string(key), std::string(value)});
    }
}
