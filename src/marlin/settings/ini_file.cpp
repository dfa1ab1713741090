// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/file_output.h>
#include <marlin/base/files/detail/settings_reader.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/resources/texts.h>
#include <marlin/settings/detail/name_index.h>
#include <marlin/settings/detail/name_pool.h>
#include <marlin/settings/detail/section_text.h>
#include <marlin/settings/ini_file.h>

#include <algorithm>
#include <cassert>
#include <system_error>
#include <vector>

// Made before the objects of hosts, destroyed after them; its name needs nothing made before.
[[gnu::init_priority(MARLINSUITE::detail::LoadComposites)]] const Section IniFile::m_ErrorSection(
    "");

namespace {

// Takes the sections as they are read. Its index serves this pass alone: afterwards hosts hold
// references through which sections can be renamed.
class SectionSink {
public:
    explicit SectionSink(std::deque<Section>& sections) : m_Sections(sections) {}

    bool BeginSection(std::string_view name, std::string_view comments) {
        HandOnKeys();
        const unsigned int hash = HashedString::ComputeHashValue(name);
        const auto isSame = [&](std::size_t position) {
            return m_Sections[position].GetName().Is(name, hash);
        };
        if (m_Index.Find(hash, isSame) >= 0) {
            return false;
        }
        m_Index.Add(hash, m_Sections.size());
        Section& section = m_Sections.emplace_back(HashedString(name));
        if (!comments.empty()) {
            section.SetComments(std::string(comments));
        }
        return true;
    }

    void AddKey(std::string_view name, std::string_view value, std::string_view comments) {
        if (m_Keys.size() == keysAtOnce) {
            HandOnKeys();
        }
        m_Keys.emplace_back(m_Names.Of(name), value, comments);
    }

    // Gives the section begun last its keys, all at once, so that it takes no more memory than
    // it needs; one of very many keys gets them in parts.
    void HandOnKeys() {
        if (!m_Keys.empty()) {
            m_Sections.back().AddKeys(m_Keys);
            m_Keys.clear();
        }
    }

    void DropSection() {
        m_Sections.pop_back();
        m_Keys.clear();
    }

private:
    static constexpr std::size_t keysAtOnce = 256;

    std::deque<Section>& m_Sections;
    std::vector<SectionKey> m_Keys;  // of the section begun last
    MARLINSUITE::NameIndex m_Index;
    MARLINSUITE::NamePool m_Names;
};

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
    MARLINSUITE::LineReader lines;
    if (const int error = lines.Open(path); error != 0) {
        MARLINSUITE::SettingsOutcome outcome;
        outcome.Kind = MARLINSUITE::SettingsOutcome::READ_ERROR;
        outcome.Error = error;
        return outcome.Result(path);
    }
    return Read(lines, path);
}

ErrorString IniFile::OpenText(std::string_view text) {
    Clear();
    MARLINSUITE::LineReader lines(text);
    return Read(lines, "");
}

ErrorString IniFile::Read(MARLINSUITE::LineReader& lines, const std::string& path) {
    SectionSink sink(m_Sections);
    const MARLINSUITE::SettingsOutcome outcome = MARLINSUITE::ReadSettings(lines, sink);
    sink.HandOnKeys();
    return outcome.Result(path);
}

std::string IniFile::Text() const {
    std::string text;
    MARLINSUITE::BlockOutput output([&text](std::string_view block) { text += block; });
    Write(output);
    output.Finish();
    return text;
}

void IniFile::Write(MARLINSUITE::BlockOutput& output) const {
    MARLINSUITE::SettingsWriter writer(output);
    for (const Section& section : m_Sections) {
        MARLINSUITE::WriteSection(writer, section);
    }
}

ErrorString IniFile::Save(const FileName& path) const {
    return Save(std::string(path.c_str()));
}

ErrorString IniFile::Save(const std::string& path) const {
    if (Empty()) {
        return ErrorString(false);
    }
    const ErrorString written =
        MARLINSUITE::ReplaceFile(path, [this](MARLINSUITE::BlockOutput& output) { Write(output); });
    return written.Empty() ? written : ErrorString(false).SetCause(written.Text());
}

bool IniFile::Open(const FileObject& file) {
    Clear();
    SectionSink sink(m_Sections);
    FobjSection cursor;
    CString name;
    for (bool found = file.GetFirstSectionEntry(cursor, name); found;
         found = file.GetNextSectionEntry(cursor, name)) {
        if (!sink.BeginSection(name.View(), {})) {
            continue;  // never: a file object holds a name once
        }
        CString key;
        CString value;
        for (bool entry = file.GetFirstMapEntry(cursor, name, key, value); entry;
             entry = file.GetNextMapEntry(cursor, key, value)) {
            sink.AddKey(key.View(), value.View(), {});
        }
    }
    sink.HandOnKeys();
    return true;
}

bool IniFile::Save(FileObject& file) const {
    for (const Section& section : m_Sections) {
        const CString name{std::string_view(*section.GetName())};
        for (const SectionKey& key : section.Keys()) {
            if (key.IsValid()) {
                file.SetEntry(name, CString(std::string_view(*key.GetName())),
                              CString(std::string_view(key.GetValue())), FileObject::REPLACE);
            }
        }
    }
    return true;
}

const Section* IniFile::FindSection(std::string_view name, unsigned int hash) const noexcept {
    for (const Section& section : m_Sections) {
        if (section.GetName().Is(name, hash)) {
            return &section;
        }
    }
    return nullptr;
}

const Section* IniFile::FindSection(std::string_view name) const noexcept {
    return FindSection(name, HashedString::ComputeHashValue(name));
}

bool IniFile::HasSection(const Section& section) const noexcept {
    return FindSection(*section.GetName(), section.GetName().HashValue()) != nullptr;
}

bool IniFile::HasSection(const char* name) const noexcept {
    return FindSection(name) != nullptr;
}

bool IniFile::HasSection(const std::string& name) const noexcept {
    return FindSection(name) != nullptr;
}

bool IniFile::AddSection(const Section& section) {
    if (!section.IsValid()) {
        return false;
    }
    const HashedString& name = section.GetName();
    if (const Section* const found = FindSection(*name, name.HashValue())) {
        const_cast<Section&>(*found) = section;  // of this file, which is not const here
    } else {
        m_Sections.push_back(section);
    }
    return true;
}

Section& IniFile::SectionOrNew(std::string_view name) {
    if (const Section* const found = FindSection(name)) {
        return const_cast<Section&>(*found);  // of this file, which is not const here
    }
    return m_Sections.emplace_back(HashedString(name));
}

Section& IniFile::operator[](const std::string& name) {
    return SectionOrNew(name);
}

Section& IniFile::operator[](const char* name) {
    return SectionOrNew(name);
}

const Section& IniFile::operator[](const std::string& name) const noexcept {
    const Section* const section = FindSection(name);
    return section ? *section : m_ErrorSection;
}

const Section& IniFile::operator[](const char* name) const noexcept {
    const Section* const section = FindSection(name);
    return section ? *section : m_ErrorSection;
}

Section& IniFile::operator[](int position) noexcept {
    assert(position >= 0 && position < NumSections());
    return m_Sections[static_cast<std::size_t>(position)];
}

const Section& IniFile::operator[](int position) const noexcept {
    assert(position >= 0 && position < NumSections());
    return m_Sections[static_cast<std::size_t>(position)];
}

bool IniFile::RemoveSectionNamed(std::string_view name, unsigned int hash) {
    const auto found = std::ranges::find_if(
        m_Sections, [&](const Section& section) { return section.GetName().Is(name, hash); });
    if (found == m_Sections.end()) {
        return false;
    }
    m_Sections.erase(found);
    return true;
}

bool IniFile::RemoveSection(const Section& section) {
    return RemoveSectionNamed(*section.GetName(), section.GetName().HashValue());
}

bool IniFile::RemoveSection(const char* name) {
    return RemoveSectionNamed(name, HashedString::ComputeHashValue(name));
}

bool IniFile::RemoveSection(const std::string& name) {
    return RemoveSectionNamed(name, HashedString::ComputeHashValue(name));
}

bool IniFile::RenameSection(const std::string& from, const std::string& to) {
    if (HasSection(to) || !HasSection(from)) {
        return false;
    }
    SectionOrNew(from).SetName(to);
    return true;
}

bool IniFile::RenameSection(const char* from, const char* to) {
    return RenameSection(std::string(from), std::string(to));
}
