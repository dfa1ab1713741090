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
    keys(Common({"Color", 2, "color"}), PaletteIndex(contour.Color));
    keys(Common({"TrueColor", 2, "color"}), contour.Color);
    keys(Common({"LineType", 3, "line type", "", LineTypes}), LineTypeText{contour.LineType});
    keys(Common({"LineWidth", 4, "line width"}), contour.LineWidth);
    keys(Common({"Annotate", 5, "carries labels"}), contour.Annotate);
}

}  // namespace MARLINSUITE::detail
