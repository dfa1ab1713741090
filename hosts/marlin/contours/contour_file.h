// SPDX-License-Identifier: MIT
#pragma once

#include "input/settings_source.h"
#include <marlin/contours/contour_definition_list.h>

#include <string>
#include <vector>

namespace HOST {

using Contour = ContourDefinitionList::ContourDefInfo;

/// Reads the definitions of a contour file, in the order of their numbers. Fails for a file that
/// holds none, or one that readers would not reach because a number before it is missing.
[[nodiscard]] ContourDefinitionList ReadContours(const std::string& path);

/// A contour definition file that is changed definition by definition. All other bytes stay.
/// Definitions are kept in ascending order of level, no level twice.
class ContourFile {
public:
    enum MISSING { FAILS, IS_EMPTY };

    /// Fails as `ReadContours` does, for a level that the file has twice, `missing` says what a
    /// path without a file does.
    ContourFile(std::string path, MISSING missing);
    /// Notes the seals that the changes break.
    void Save(Output& output);

    /// True when there was no file.
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
        std::string Block;
    };

    void TakeItems();
    void PutBlock(std::size_t number);
    [[nodiscard]] std::vector<Item>::iterator LowerBound(double level);

    std::string m_Path;
    SettingsSource m_Source;
    bool m_IsNew = false;
    std::vector<int> m_Positions;  // in the file, of the sections by their numbers
    std::vector<Item> m_Items;     // in order of level
};

}  // namespace HOST
