// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_reader.h>
#include <marlin/base/files/file_replacement.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/settings/detail/named_items.h>
#include <marlin/settings/detail/save_check.h>
#include <marlin/settings/ini_file.h>

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <vector>

using MARLINSUITE::detail::FindNamed;
using MARLINSUITE::detail::HasNamed;
using MARLINSUITE::detail::LosesSomething;
using MARLINSUITE::detail::NamedOr;
using MARLINSUITE::detail::NamedOrNew;
using MARLINSUITE::detail::ReasonAgainstSaving;
using MARLINSUITE::detail::RemoveNamed;
using MARLINSUITE::detail::SettingsOutcome;

// Made before the objects of hosts, destroyed after them; its name needs nothing made before.
[[gnu::init_priority(MARLINSUITE::detail::LoadComposites)]] const Section IniFile::m_ErrorSection(
    "");

namespace {

// Takes the sections as they are read. Its index of their names serves this pass alone, in which
// finding a second section of one name must not cost more in a longer file: afterwards hosts
// hold references through which sections can be renamed.
class SectionSink {
public:
    explicit SectionSink(std::deque<Section>& sections) : m_Sections(sections) {}

    bool BeginSection(std::string_view name, std::string_view comments) {
        HandOnKeys();
        if (2 * m_Sections.size() >= m_Index.size()) {
            GrowIndex();
        }
        const HashedString hashed(name);
        std::uint32_t& place = PlaceOf(hashed);
        if (place != 0) {
            return false;
        }
        Section& section = m_Sections.emplace_back(hashed);
        section.SetComments(std::string(comments));
        place = static_cast<std::uint32_t>(m_Sections.size());
        return true;
    }

    void AddKey(std::string_view name, std::string_view value, std::string_view comments) {
        m_Keys.emplace_back(name, value, comments);
    }

    // Gives the section begun last its keys, all at once, so that it takes no more memory than
    // they need.
    void HandOnKeys() {
        if (!m_Keys.empty()) {
            m_Sections.back().AddKeys(m_Keys);
            m_Keys.clear();
        }
    }

private:
    // The place of that name, or the free one where it belongs.
    std::uint32_t& PlaceOf(const HashedString& name) {
        std::size_t i = name.HashValue() % m_Index.size();
        while (m_Index[i] != 0 && m_Sections[m_Index[i] - 1].GetName() != name) {
            i = (i + 1) % m_Index.size();
        }
        return m_Index[i];
    }

    void GrowIndex() {
        m_Index.assign(std::max<std::size_t>(64, 2 * m_Index.size()), 0);
        std::uint32_t number = 0;
        for (const Section& section : m_Sections) {
            PlaceOf(section.GetName()) = ++number;
        }
    }

    std::deque<Section>& m_Sections;
    std::vector<SectionKey> m_Keys;  // of the section begun last
    // Numbers of sections from 1 by the hash of their names, 0 where a place is free; at most
    // half full. With the standard's hash map a third of the reading time went into it.
    std::vector<std::uint32_t> m_Index;
};

// The length of a section's text, with a guess for marks and the blanks of the columns.
std::size_t AboutSizeOf(const Section& section) {
    constexpr std::size_t marksAndBlanks = 16;
    std::size_t size = section.GetName()->size() + section.GetComments().size() + marksAndBlanks;
    for (const SectionKey& key : section.Keys()) {
        size += key.GetName()->size() + key.GetValue().size() + key.GetComments().size() +
                marksAndBlanks;
    }
    return size;
}

}  // namespace

IniFile::IniFile(const std::string& path) {
    static_cast<void>(Open(path));
}

ErrorString IniFile::Open(const FileName& path) {
    return Open(std::string(path.c_str()));
}

ErrorString IniFile::Open(const std::string& path) {
    Clear();
    if (path.empty()) {
        return ErrorString(false);
    }
    SectionSink sink(m_Sections);
    const SettingsOutcome outcome = MARLINSUITE::detail::ReadSettingsFile(path, sink);
    sink.HandOnKeys();
    return Finish(outcome, path);
}

ErrorString IniFile::OpenText(std::string_view text) {
    Clear();
    MARLINSUITE::detail::LineReader lines(text);
    SectionSink sink(m_Sections);
    const SettingsOutcome outcome = MARLINSUITE::detail::ReadSettings(lines, sink);
    sink.HandOnKeys();
    return Finish(outcome, "");
}

ErrorString IniFile::Finish(const SettingsOutcome& outcome, const std::string& path) {
    const bool isCutShort =
        outcome.Kind == SettingsOutcome::BAD_HEADER || outcome.Kind == SettingsOutcome::READ_ERROR;
    if (isCutShort && !Empty()) {
        m_Sections.pop_back();  // it may lack keys
    }
    return outcome.Result(path);
}

std::string IniFile::Text() const {
    std::string text;
    // A text that grows step by step took more than half of the time of a save.
    std::size_t size = 0;
    for (const Section& section : m_Sections) {
        size += AboutSizeOf(section);
    }
    text.reserve(size);
    for (const Section& section : m_Sections) {
        section.AppendTo(text);
    }
    return text;
}

std::vector<IniFile::KeyPlace> IniFile::LosingKeys() const {
    std::vector<KeyPlace> places;
    for (int i = 0; i < NumSections(); ++i) {
        for (int k = 0; k < (*this)[i].NumKeys(); ++k) {
            if (LosesSomething((*this)[i][k])) {
                places.push_back({i, k});
            }
        }
    }
    return places;
}

ErrorString IniFile::Save(const FileName& path) const {
    return Save(std::string(path.c_str()));
}

ErrorString IniFile::Save(const std::string& path) const {
    if (Empty()) {
        return ErrorString(false);
    }
    if (const std::string reason = ReasonAgainstSaving(m_Sections); !reason.empty()) {
        return ErrorString(false).SetCause(path + ": " + reason);
    }
    const ErrorString written = MARLINSUITE::ReplaceFile(path, Text());
    return written.Empty() ? written : ErrorString(false).SetCause(written.Text());
}

bool IniFile::Open(const FileObject& file) {
    Clear();
    FobjSection cursor;
    CString name;
    for (bool found = file.GetFirstSectionEntry(cursor, name); found;
         found = file.GetNextSectionEntry(cursor, name)) {
        // A file object holds a name once, so nothing is to be looked for.
        Section& section = m_Sections.emplace_back(HashedString(name.View()));
        CString key;
        CString value;
        for (bool entry = file.GetFirstMapEntry(cursor, name, key, value); entry;
             entry = file.GetNextMapEntry(cursor, key, value)) {
            section.AddKey(key.View(), value.View(), {});
        }
    }
    return true;
}

bool IniFile::Save(FileObject& file) const {
    for (const Section& section : m_Sections) {
        const CString name{std::string_view(*section.GetName())};
        std::vector<CString> names;
        for (const SectionKey& key : section.Keys()) {
            names.emplace_back(std::string_view(*key.GetName()));
        }
        // Whoever asks the object for a key finds the first: none that it held before may stay.
        file.RemoveEntries(name, names);
        for (const SectionKey& key : section.Keys()) {
            if (key.IsValid()) {
                file.SetEntry(name, CString(std::string_view(*key.GetName())),
                              CString(std::string_view(key.GetValue())), FileObject::APPEND);
            }
        }
    }
    return true;
}

bool IniFile::HasSection(const Section& section) const noexcept {
    return HasNamed(m_Sections, *section.GetName());
}

bool IniFile::HasSection(const char* name) const noexcept {
    return HasNamed(m_Sections, name);
}

bool IniFile::HasSection(const std::string& name) const noexcept {
    return HasNamed(m_Sections, name);
}

bool IniFile::AddSection(const Section& section) {
    if (!section.IsValid()) {
        return false;
    }
    const auto found = FindNamed(m_Sections, *section.GetName());
    if (found != m_Sections.end()) {
        *found = section;
    } else {
        m_Sections.push_back(section);
    }
    return true;
}

Section& IniFile::operator[](const std::string& name) {
    return NamedOrNew(m_Sections, name);
}

Section& IniFile::operator[](const char* name) {
    return NamedOrNew(m_Sections, name);
}

const Section& IniFile::operator[](const std::string& name) const noexcept {
    return NamedOr(m_Sections, name, m_ErrorSection);
}

const Section& IniFile::operator[](const char* name) const noexcept {
    return NamedOr(m_Sections, name, m_ErrorSection);
}

Section& IniFile::operator[](int position) noexcept {
    assert(position >= 0 && position < NumSections());
    return m_Sections[static_cast<std::size_t>(position)];
}

const Section& IniFile::operator[](int position) const noexcept {
    assert(position >= 0 && position < NumSections());
    return m_Sections[static_cast<std::size_t>(position)];
}

bool IniFile::RemoveSection(const Section& section) {
    // A copy, since the name may be that of the section that goes.
    return RemoveNamed(m_Sections, std::string(*section.GetName()));
}

bool IniFile::RemoveSection(const char* name) {
    return RemoveNamed(m_Sections, name);
}

bool IniFile::RemoveSection(const std::string& name) {
    return RemoveNamed(m_Sections, name);
}

bool IniFile::RenameSection(const std::string& from, const std::string& to) {
    const auto section = FindNamed(m_Sections, from);
    if (section == m_Sections.end() || HasSection(to)) {
        return false;
    }
    section->SetName(to);
    return true;
}

bool IniFile::RenameSection(const char* from, const char* to) {
    return RenameSection(std::string(from), std::string(to));
}
