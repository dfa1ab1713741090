// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/settings/section.h>

#include <cstddef>
#include <deque>
#include <unordered_map>
#include <vector>

namespace MARLINSUITE::detail {

/// Finds the sections of a contour file by their numbers, which are asked for from 0 upwards.
/// Sections nearly always lie in that order, and their places then are their numbers. Otherwise
/// names are looked up by hash: comparing all of them each time would take the square of the time.
/// The sections must outlive it.
class NumberedSections {
public:
    explicit NumberedSections(const std::deque<Section>& sections) : m_Sections(sections) {}

    const Section* Find(int number) {
        const auto place = static_cast<std::size_t>(number);
        if (m_ByName.empty() && place == m_Sections.size()) {
            return nullptr;
        }
        const HashedString name(ContourDefinitionList::SectionName(number));
        if (m_ByName.empty() && m_Sections[place].GetName() == name) {
            return &m_Sections[place];
        }
        if (m_ByName.empty()) {
            for (const Section& section : m_Sections) {
                m_ByName.emplace(section.GetName(), &section);
            }
        }
        const auto found = m_ByName.find(name);
        return found == m_ByName.end() ? nullptr : found->second;
    }

private:
    const std::deque<Section>& m_Sections;
    std::unordered_map<HashedString, const Section*> m_ByName;  // empty while they are in order
};

/// The definitions of a contour file, by number, up to the first that is missing.
[[nodiscard]] std::vector<ContourDefinitionList::ContourDefInfo> DefinitionsIn(const IniFile& file);
/// The number of sections that are named like definitions.
[[nodiscard]] std::size_t NumContourSections(const IniFile& file);

}  // namespace MARLINSUITE::detail
