// SPDX-License-Identifier: MIT
#pragma once

#include "input/settings_source.h"
#include <marlin/contours/contour_definition_list.h>

#include <string>
#include <string_view>
#include <vector>

namespace HOST {

using Contour = ContourDefinitionList::ContourDefInfo;

/// Reads a contour definition file into an empty list. A failure names file and cause, with the
/// line where one is known; a file that holds no definition, or a definition that no list would
/// reach, is one.
[[nodiscard]] ErrorString ReadContours(const std::string& path, ContourDefinitionList& contours);

/// A contour definition file that is changed definition by definition. Comments, other keys and
/// other sections stay. Definitions are kept in ascending order of level, no level twice.
class ContourFile {
public:
    /// `canBeNew`: a file that does not exist is one without definitions.
    [[nodiscard]] ErrorString Open(const std::string& path, bool canBeNew);
    [[nodiscard]] ErrorString Save();

    [[nodiscard]] bool IsNew() const noexcept { return m_IsNew; }
    [[nodiscard]] bool Empty() const noexcept { return m_Items.empty(); }
    /// Null for a level that has no definition.
    [[nodiscard]] Contour* Find(double level);
    /// The level must have no definition.
    void Add(const Contour& contour);
    /// The level must have one.
    void Remove(double level);

private:
    struct Item {
        double Level = 0.0;  // as files hold it
        Contour Definition;
        Section Keys;  // as read
    };

    [[nodiscard]] ErrorString TakeItems(const ContourDefinitionList& contours);
    [[nodiscard]] std::vector<Item>::iterator LowerBound(double level);

    SettingsSource m_Source;
    std::string m_Path;
    bool m_IsNew = false;
    std::vector<int> m_Positions;  // in the file, of the sections by their numbers
    std::vector<Item> m_Items;     // in order of level
};

}  // namespace HOST
