// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/detail/record_keys.h>

#include <iterator>
#include <string>

namespace MARLINSUITE::detail {

inline constexpr NamedValue LineTypes[] = {
    {0, "CONTINUOUS", "solid"},
    {1, "DASHED", "dashed"},
    {2, "DOTTED", "dotted"},
};

/// A line type by its text; continuous for any other text and for a type that is none.
struct LineTypeText {
    int& LineType;

    void Read(const SectionKey& key) { LineType = ValueOfText(LineTypes, key.GetValue(), 0); }
    void Write(SectionKey& key) const { key << Text(); }
    [[nodiscard]] RecordValue Value() const { return Text(); }

private:
    [[nodiscard]] std::string Text() const {
        const int last = static_cast<int>(std::size(LineTypes)) - 1;
        return LineTypes[LineType >= 0 && LineType <= last ? LineType : 0].Text;
    }
};

/// The keys of a contour definition in the order in which files hold them.
template <class Keys>
void ForEachContourKey(ContourDefinitionList::ContourDefInfo& contour, const Keys& keys) {
    keys({"Level", 1, "depth of the contour"}, contour.Level);
    keys({.Name = "Color", .Field = 2, .Meaning = "color", .IsCommon = true},
         PaletteIndex(contour.Color));
    keys({.Name = "TrueColor", .Field = 2, .Meaning = "color", .IsCommon = true}, contour.Color);
    keys({.Name = "LineType",
          .Field = 3,
          .Meaning = "line type",
          .Values = LineTypes,
          .IsCommon = true},
         LineTypeText{contour.LineType});
    keys({.Name = "LineWidth", .Field = 4, .Meaning = "line width", .IsCommon = true},
         contour.LineWidth);
    keys({.Name = "Annotate", .Field = 5, .Meaning = "carries labels", .IsCommon = true},
         contour.Annotate);
}

}  // namespace MARLINSUITE::detail
