// SPDX-License-Identifier: MIT
#include <marlin/base/color_table.h>
#include <marlin/base/file_replacement.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/detail/contour_file.h>

#include <cassert>
#include <cmath>

[[gnu::init_priority(101)]] const std::string ContourDefinitionList::LINESTYLES[3] = {
    "CONTINUOUS", "DASHED", "DOTTED"};

namespace {

// The smallest multiple of the interval that is not below the lowest level.
double FirstLevel(double lowest, double interval) {
    const double first = lowest - std::fmod(lowest, interval);
    return first < lowest ? first + interval : first;
}

bool CanGenerate(double first, double highest, double interval) {
    int count = 0;
    for (double level = first; level <= highest;) {
        const double next = level + interval;
        if (!(next > level) || ++count > ContourDefinitionList::MaxGeneratedLevels) {
            return false;
        }
        level = next;
    }
    return true;
}

}  // namespace

const ContourDefinitionList::ContourDefInfo& ContourDefinitionList::operator[](
    int index) const noexcept {
    assert(HoldsIndex(index));
    return m_Definitions[static_cast<std::size_t>(index)];
}

// Written out, since a list in another order than by level may be searched too.
std::size_t ContourDefinitionList::LowerBound(double level) const noexcept {
    std::size_t first = 0;
    std::size_t count = m_Definitions.size();
    while (count > 0) {
        const std::size_t half = count / 2;
        if (m_Definitions[first + half].Level < level) {
            first += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    return first;
}

int ContourDefinitionList::Find(double level) const noexcept {
    const std::size_t position = LowerBound(level);
    if (position == m_Definitions.size()) {
        return -1;
    }
    if (m_Definitions[position].Level == level) {
        return static_cast<int>(position);
    }
    return position > 0 && m_Definitions[position - 1].Level == level
               ? static_cast<int>(position) - 1
               : -1;
}

int ContourDefinitionList::Add(const ContourDefInfo& def) {
    if (std::isnan(def.Level)) {
        return -1;
    }
    if (m_Definitions.empty() || m_Definitions.back().Level < def.Level) {
        m_Definitions.push_back(def);
        return NumContours() - 1;
    }
    const std::size_t position = LowerBound(def.Level);
    if (position < m_Definitions.size() && m_Definitions[position].Level == def.Level) {
        return -1;
    }
    m_Definitions.insert(m_Definitions.begin() + static_cast<std::ptrdiff_t>(position), def);
    return static_cast<int>(position);
}

int ContourDefinitionList::Set(int index, const ContourDefInfo& def) {
    if (!HoldsIndex(index) || std::isnan(def.Level)) {
        return -1;
    }
    ContourDefInfo& old = m_Definitions[static_cast<std::size_t>(index)];
    if (old.Level == def.Level) {
        old = def;
        return index;
    }
    const ContourDefInfo moved = def;  // it may stand in this list
    Remove(index);
    return Add(moved);
}

bool ContourDefinitionList::Remove(int index) {
    if (!HoldsIndex(index)) {
        return false;
    }
    m_Definitions.erase(m_Definitions.begin() + index);
    return true;
}

bool ContourDefinitionList::Generate(double lowest, double highest, double interval) {
    m_Definitions.clear();
    if (!(lowest < highest) || !(interval > 0.0) || !std::isfinite(lowest) ||
        !std::isfinite(highest)) {
        return false;
    }
    const double first = FirstLevel(lowest, interval);
    if (!CanGenerate(first, highest, interval)) {
        return false;
    }
    ContourDefInfo definition;
    for (double level = first; level <= highest; level += interval) {
        definition.Level = level;
        m_Definitions.push_back(definition);
    }
    return true;
}

bool ContourDefinitionList::Generate(const ColorTable& table, bool invert) {
    m_Definitions.clear();
    ContourDefInfo definition;
    for (int i = 0; i < table.NumEntries(); ++i) {
        const auto color = static_cast<unsigned int>(table.EntryColor(i));
        definition.Level = table.EntryValue(i);
        definition.Color = invert ? 255U - color : color;
        m_Definitions.push_back(definition);
    }
    return !m_Definitions.empty();
}

bool ContourDefinitionList::Load(const char* path) {
    if (!path || !*path || !MARLINSUITE::ReadContourFile(path, m_Definitions)) {
        return false;
    }
    return !m_Definitions.empty();
}

bool ContourDefinitionList::Save(const char* path) const {
    if (!path || !*path || m_Definitions.empty()) {
        return false;
    }
    return MARLINSUITE::ReplaceFile(path, MARLINSUITE::ContourFileText(m_Definitions)).Empty();
}
