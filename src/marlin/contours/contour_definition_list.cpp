// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/files/file_replacement.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/detail/contour_keys.h>
#include <marlin/contours/detail/numbered_sections.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/core/number_text.h>
#include <marlin/resources/texts.h>
#include <marlin/settings/ini_file.h>

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const std::string ContourDefinitionList::LINESTYLES[3] = {
    MARLINSUITE::detail::LineTypes[0].Text, MARLINSUITE::detail::LineTypes[1].Text,
    MARLINSUITE::detail::LineTypes[2].Text};

namespace {

using namespace MARLINSUITE::detail;
using MARLINSUITE::RecordKey;
using ContourDefInfo = ContourDefinitionList::ContourDefInfo;

// Reads a definition of a file: a section without the key "Color" has the palette index of the
// section before it.
struct FileReader {
    const Section& Source;
    int& Index;

    void operator()(const RecordKey& key, PaletteIndex color) const {
        Source[key.Name] >> Index;
        color.Set(Index);
    }
    template <class Field>
    void operator()(const RecordKey& key, Field&& field) const {
        KeyReader reader(Source);
        reader(key, std::forward<Field>(field));
    }
};

// The smallest multiple of the interval that is not below the lowest level.
double FirstLevel(double lowest, double interval) {
    const double first = lowest - std::fmod(lowest, interval);
    return first < lowest ? first + interval : first;
}

// -1 for too many levels, among them the endless ones of an interval that does not move a level.
int CountLevels(double first, double highest, double interval) {
    int count = 0;
    for (double level = first; level <= highest; level += interval) {
        if (++count > ContourDefinitionList::MaxGeneratedLevels) {
            return -1;
        }
    }
    return count;
}

double AsStored(double level) {
    std::string text;
    MARLINSUITE::AppendFixed(text, level, 6);
    static_cast<void>(MARLINSUITE::ParseNumber(text, level));  // it is a number
    return level;
}

// The reason why a file cannot hold the list; empty when it can. A level that was loaded twice is
// written twice, but two levels must not become one.
std::string ReasonAgainstSaving(const ContourDefinitionList& contours) {
    std::vector<double> levels;
    levels.reserve(static_cast<std::size_t>(contours.NumContours()));
    for (int i = 0; i < contours.NumContours(); ++i) {
        const ContourDefInfo& contour = contours[i];
        if (!std::isfinite(contour.Level) || !std::isfinite(contour.LineWidth)) {
            return "a level or width is not finite";
        }
        levels.push_back(contour.Level);
    }
    std::ranges::sort(levels);
    const auto areStoredAlike = [](double a, double b) {
        constexpr double step = 1e-6;  // nearly all levels lie farther apart
        return a != b && b - a < 2 * step && AsStored(a) == AsStored(b);
    };
    const auto found = std::ranges::adjacent_find(levels, areStoredAlike);
    if (found == levels.end()) {
        return {};
    }
    std::string reason = "two levels would be stored as ";
    MARLINSUITE::AppendFixed(reason, *found, 6);
    return reason;
}

}  // namespace

bool ContourDefInfo::Read(const Section& section) {
    ForEachContourKey(*this, KeyReader(section));
    return true;
}

bool ContourDefInfo::Read(const Section& section, int& paletteIndex) {
    ForEachContourKey(*this, FileReader{section, paletteIndex});
    return true;
}

bool ContourDefInfo::Write(Section& section) const {
    ContourDefInfo copy = *this;
    ForEachContourKey(copy, KeyReplacer(section));
    return true;
}

std::string ContourDefinitionList::SectionName(int number) {
    std::string name = "Contour(";
    MARLINSUITE::AppendNumber(name, number);
    return name + ")";
}

const ContourDefInfo& ContourDefinitionList::operator[](int index) const noexcept {
    assert(HoldsIndex(index));
    return *(Begin() + index);
}

int ContourDefinitionList::LowerBound(double level) const noexcept {
    // Of a list that does not ascend it gives some place, as any search by halves.
    const auto found =
        std::ranges::lower_bound(Begin(), m_Storage.end(), level, {}, &ContourDefInfo::Level);
    return static_cast<int>(found - Begin());
}

int ContourDefinitionList::Find(double level) const noexcept {
    const int index = LowerBound(level);
    return index < NumContours() && (*this)[index].Level == level ? index : -1;
}

void ContourDefinitionList::Swap(ContourDefinitionList& other) noexcept {
    m_Storage.swap(other.m_Storage);
    std::swap(m_First, other.m_First);
    std::swap(m_IsAscending, other.m_IsAscending);
}

void ContourDefinitionList::NoteOrder() noexcept {
    m_IsAscending = std::ranges::is_sorted(Begin(), m_Storage.end(), {}, &ContourDefInfo::Level);
}

void ContourDefinitionList::Insert(int index, const ContourDefInfo& def) {
    const ContourDefInfo inserted = def;  // it may be one of this list, which moves
    if (index > NumContours() / 2) {
        m_Storage.insert(Begin() + index, inserted);
        return;
    }
    if (m_First == 0) {
        // As much room as there are definitions keeps the cost of many insertions in proportion.
        m_First = m_Storage.size() + 1;
        m_Storage.insert(m_Storage.begin(), m_First, ContourDefInfo());
    }
    const auto begin = m_Storage.begin() + static_cast<std::ptrdiff_t>(m_First);
    *std::move(begin, begin + index, begin - 1) = inserted;
    --m_First;
}

int ContourDefinitionList::Add(const ContourDefInfo& def) {
    if (std::isnan(def.Level)) {
        return -1;
    }
    // Most lists are filled in order. With a search each time that takes 0.8 to 0.9 times as long
    // as in a flat map, without one 0.4 times; 0.7 is the limit.
    const int last = NumContours() - 1;
    const bool isHighest = m_IsAscending && (last < 0 || (*this)[last].Level < def.Level);
    const int index = isHighest ? last + 1 : LowerBound(def.Level);
    if (index <= last && (*this)[index].Level == def.Level) {
        return -1;
    }
    if (isHighest) {
        m_Storage.push_back(def);
    } else {
        Insert(index, def);
    }
    return index;
}

int ContourDefinitionList::Set(int index, const ContourDefInfo& def) {
    if (!HoldsIndex(index) || std::isnan(def.Level)) {
        return -1;
    }
    ContourDefInfo& old = m_Storage[m_First + static_cast<std::size_t>(index)];
    if (old.Level == def.Level) {
        old = def;
        return index;
    }
    const ContourDefInfo moved = def;  // it may be one of this list, which moves
    Remove(index);
    return Add(moved);
}

bool ContourDefinitionList::Remove(int index) {
    if (!HoldsIndex(index)) {
        return false;
    }
    m_Storage.erase(Begin() + index);
    return true;
}

void ContourDefinitionList::Replace(int index, int count,
                                    std::span<const ContourDefInfo> definitions) {
    assert(index >= 0 && count >= 0 && index + count <= NumContours());
    const auto place = m_Storage.erase(Begin() + index, Begin() + index + count);
    m_Storage.insert(place, definitions.begin(), definitions.end());
    NoteOrder();
}

bool ContourDefinitionList::Generate(double lowest, double highest, double interval) {
    *this = ContourDefinitionList();
    if (!(lowest < highest) || !(interval > 0.0) || !std::isfinite(lowest) ||
        !std::isfinite(highest)) {
        return false;
    }
    const double first = FirstLevel(lowest, interval);
    const int count = CountLevels(first, highest, interval);
    if (count < 0) {
        return false;
    }
    m_Storage.reserve(static_cast<std::size_t>(count));
    ContourDefInfo definition;
    for (double level = first; level <= highest; level += interval) {
        definition.Level = level;
        m_Storage.push_back(definition);
    }
    return true;
}

bool ContourDefinitionList::Generate(const ColorTable& table, bool invert) {
    *this = ContourDefinitionList();
    ContourDefInfo definition;
    for (int i = 0; i < table.NumEntries(); ++i) {
        const auto color = static_cast<unsigned int>(table.EntryColor(i));
        definition.Level = table.EntryValue(i);
        definition.Color = invert ? 255U - color : color;
        m_Storage.push_back(definition);
    }
    return NumContours() != 0;
}

ErrorString ContourDefinitionList::Open(const std::string& path) {
    IniFile file;
    if (const ErrorString read = file.Open(path); !read.Empty()) {
        return read;
    }
    const ErrorString taken = Open(file);
    return taken.Empty() ? taken : ErrorString(path + ": " + taken.Text());
}

ErrorString ContourDefinitionList::Open(const IniFile& file) {
    std::vector<ContourDefInfo> definitions = DefinitionsIn(file);
    if (definitions.empty() || definitions.size() != NumContourSections(file)) {
        return ErrorString(
            "no section [" + SectionName(static_cast<int>(definitions.size())) + "]" +
            (definitions.empty() ? ": not a contour definition file"
                                 : ", but others of higher numbers, which are not read"));
    }
    m_Storage = std::move(definitions);
    m_First = 0;
    NoteOrder();
    return {};
}

bool ContourDefinitionList::Load(const char* path) {
    if (!path || !*path) {
        return false;
    }
    IniFile file;
    // The sections before a fault in the file count. Those before a failure of the system do not:
    // a list of them, saved, would replace the whole file by its first part.
    const ErrorString error = file.Open(std::string(path));
    const std::string_view failure =
        MARLINSUITE::Message(MARLINSUITE::MESSAGE::ERROR_OPENING_SETTINGS);
    if (file.Empty() || error.Text().starts_with(failure)) {
        return false;
    }
    Replace(NumContours(), 0, DefinitionsIn(file));
    return NumContours() != 0;
}

bool ContourDefinitionList::Save(const char* path) const {
    if (!path || !*path || NumContours() == 0) {
        return false;
    }
    if (const std::string reason = ReasonAgainstSaving(*this); !reason.empty()) {
        ErrorString::RecordFailure(path + (": " + reason));
        return false;
    }
    // Section by section, since a file of them in memory would look for each name in all others.
    std::string text;
    for (int i = 0; i < NumContours(); ++i) {
        Section section(SectionName(i));
        (*this)[i].Write(section);
        section.AppendTo(text);
    }
    return MARLINSUITE::ReplaceFile(path, text).Empty();
}
