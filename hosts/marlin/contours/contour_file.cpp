// SPDX-License-Identifier: MIT
#include "contour_file.h"

#include "input/files.h"
#include "input/ignoring_case.h"
#include "input/level.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace HOST {

namespace {

ContourDefinitionList ListIn(const SettingsSource& source) {
    ContourDefinitionList list;
    const ErrorString taken = list.Open(source.File());
    if (!taken.Empty()) {
        Fail(source.Path() + ": " + taken.Text());
    }
    return list;
}

// By number.
std::vector<int> PositionsOf(const IniFile& file) {
    ByName<int> sections;
    for (int i = 0; i < file.NumSections(); ++i) {
        sections.emplace(*file[i].GetName(), i);
    }
    std::vector<int> positions;
    std::string name = ContourDefinitionList::SectionName(0);
    for (auto found = sections.find(name); found != sections.end(); found = sections.find(name)) {
        positions.push_back(found->second);
        name = ContourDefinitionList::SectionName(static_cast<int>(positions.size()));
    }
    return positions;
}

// A key that a section lacks has its value from the section before, so they are read in a row.
class Reading {
public:
    const Contour& Next(const Section& section) {
        m_Contour.Read(section, m_PaletteIndex);
        return m_Contour;
    }

private:
    Contour m_Contour;
    int m_PaletteIndex = 0;
};

// Numbers are compared to six decimals, with which they would be written.
bool IsSameValue(const std::string& text, const std::string& other) {
    double number = 0.0;
    double otherNumber = 0.0;
    return MARLINSUITE::EqualIgnoringCase(text, other) ||
           (ParseLevel(text, number) && ParseLevel(other, otherNumber) && number == otherNumber);
}

// Values that the section has already keep the text that somebody gave them.
void Write(const Contour& contour, Section& section) {
    Section wanted("");
    contour.Write(wanted);
    for (const SectionKey& key : wanted.Keys()) {
        SectionKey& old = section[*key.GetName()];
        if (!IsSameValue(old.GetValue(), key.GetValue())) {
            old << key.GetValue();
        }
    }
}

}  // namespace

ContourDefinitionList ReadContours(const std::string& path) {
    SettingsSource source;
    Require(source.OpenWithSections(path));
    return ListIn(source);
}

ContourFile::ContourFile(std::string path, MISSING missing) : m_Path(std::move(path)) {
    m_Source.Lock(m_Path);
    const ErrorString outcome = m_Source.OpenWithSections(m_Path);
    std::error_code unknown;
    m_IsNew = missing == IS_EMPTY && !outcome.Empty() && m_Source.Path().empty() &&
              !std::filesystem::exists(m_Path, unknown) && !unknown;
    if (!m_IsNew) {
        Require(outcome);
        TakeItems();
    }
}

void ContourFile::TakeItems() {
    const ContourDefinitionList list = ListIn(m_Source);
    m_Positions = PositionsOf(m_Source.File());
    for (int i = 0; i < list.NumContours(); ++i) {
        const int position = m_Positions[static_cast<std::size_t>(i)];
        m_Items.push_back({StoredLevel(list[i].Level), list[i], m_Source.File()[position],
                           m_Source.Text().Blocks()[static_cast<std::size_t>(position)]});
    }
    std::ranges::stable_sort(m_Items, {}, &Item::Level);
    const auto twice = std::ranges::adjacent_find(m_Items, {}, &Item::Level);
    if (twice != m_Items.end()) {
        Fail(m_Path + ": level " + LevelText(twice->Level) + " stands twice, in [" +
             *twice->Keys.GetName() + "] and [" + *std::next(twice)->Keys.GetName() + "]");
    }
}

std::vector<ContourFile::Item>::iterator ContourFile::LowerBound(double level) {
    return std::ranges::lower_bound(m_Items, level, {}, &Item::Level);
}

Contour* ContourFile::Find(double level) {
    const auto found = LowerBound(level);
    return found != m_Items.end() && found->Level == level ? &found->Definition : nullptr;
}

void ContourFile::Add(const Contour& contour) {
    m_Items.insert(LowerBound(contour.Level), {contour.Level, contour, Section(""), ""});
}

void ContourFile::Remove(double level) {
    m_Items.erase(LowerBound(level));
}

void ContourFile::PutBlock(std::size_t number) {
    const Item& item = m_Items[number];
    SettingsText& text = m_Source.Text();
    std::string block =
        item.Block.empty() ? text.NewBlock(item.Keys) : text.Updated(item.Block, item.Keys);
    if (number < m_Positions.size()) {
        text.Blocks()[static_cast<std::size_t>(m_Positions[number])] = std::move(block);
    } else {
        text.Append(std::move(block));
    }
}

// Only a section that would be read otherwise is changed, so that seals stay where nothing
// has changed; one that lacks a key may have got another section before it.
void ContourFile::Save(Output& output) {
    Reading reading;
    std::vector<std::string> broken;
    for (std::size_t i = 0; i < m_Items.size(); ++i) {
        Section& section = m_Items[i].Keys;
        section.SetName(ContourDefinitionList::SectionName(static_cast<int>(i)));
        if (section.NumKeys() == 0 || reading.Next(section) != m_Items[i].Definition) {
            const bool wasSealed = IsSealed(section);
            Write(m_Items[i].Definition, section);
            reading.Next(section);
            if (wasSealed && !IsSealed(section)) {
                broken.push_back(*section.GetName());
            }
        }
        PutBlock(i);
    }
    for (std::size_t i = m_Items.size(); i < m_Positions.size(); ++i) {
        m_Source.Text().Blocks()[static_cast<std::size_t>(m_Positions[i])].clear();
    }
    WriteFile(m_Path, m_Source.Text().Bytes(), output);
    for (const std::string& name : broken) {
        Report(m_Path + ": [" + name + "] was sealed and is now changed");
    }
}

}  // namespace HOST
