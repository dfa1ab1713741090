// SPDX-License-Identifier: MIT
#include <marlin/contours/detail/numbered_sections.h>
#include <marlin/core/ascii.h>
#include <marlin/settings/ini_file.h>

#include <algorithm>

namespace MARLINSUITE::detail {

std::vector<ContourDefinitionList::ContourDefInfo> DefinitionsIn(const IniFile& file) {
    NumberedSections sections(file.Sections());
    std::vector<ContourDefinitionList::ContourDefInfo> definitions;
    ContourDefinitionList::ContourDefInfo definition;
    int paletteIndex = 0;
    int number = 0;
    while (const Section* const section = sections.Find(number++)) {
        definition.Read(*section, paletteIndex);
        definitions.push_back(definition);
    }
    return definitions;
}

std::size_t NumContourSections(const IniFile& file) {
    constexpr std::string_view start = "Contour(";
    return static_cast<std::size_t>(std::ranges::count_if(file.Sections(), [&](const auto& each) {
        const std::string_view name = *each.GetName();
        return EqualIgnoringCase(name.substr(0, start.size()), start);
    }));
}

}  // namespace MARLINSUITE::detail
