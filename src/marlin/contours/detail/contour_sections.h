// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace MARLINSUITE {

/// What one section of a contour definition file says. Of several keys of one name the first
/// counts, readable or not.
class ContourSection {
public:
    void AddKey(std::string_view name, std::string_view value);
    /// Gives a definition and a palette index the values that the section has for them; the
    /// color becomes that of the index, and the line type continuous, where it has none.
    void Apply(ContourDefinitionList::ContourDefInfo& definition, int& paletteIndex) const;

private:
    enum KEY : unsigned char {
        UNKNOWN = 0,
        LEVEL = 1,
        COLOR = 2,
        TRUE_COLOR = 4,
        LINE_TYPE = 8,
        LINE_WIDTH = 16,
        ANNOTATE = 32,
    };

    [[nodiscard]] static KEY KeyOf(std::string_view name) noexcept;
    [[nodiscard]] bool ReadValue(KEY key, std::string_view value) noexcept;
    [[nodiscard]] bool Has(KEY key) const noexcept { return (m_Readable & key) != 0; }

    ContourDefinitionList::ContourDefInfo m_Values;
    int m_PaletteIndex = 0;
    unsigned char m_Seen = 0;
    unsigned char m_Readable = 0;
};

/// Gathers the sections of a contour definition file, as a sink of `ReadSettings`.
class ContourSections {
public:
    bool BeginSection(std::string_view name, std::string_view comments);
    void AddKey(std::string_view name, std::string_view value, std::string_view comments);
    void DropSection();

    [[nodiscard]] bool Empty() const noexcept { return m_Count == 0; }
    /// The section "Contour(n)", or null.
    [[nodiscard]] const ContourSection* Find(std::size_t n) const noexcept;

private:
    [[nodiscard]] static std::optional<std::size_t> NumberOf(std::string_view name) noexcept;

    std::vector<ContourSection> m_InOrder;  // those that came each behind its predecessor
    std::unordered_map<std::size_t, ContourSection> m_OutOfOrder;
    std::unordered_set<std::string> m_OtherNames;  // in lower case
    std::size_t m_Count = 0;
    ContourSection* m_Current = nullptr;
    std::size_t m_CurrentNumber = 0;
};

}  // namespace MARLINSUITE
