// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/text_functions.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/detail/record_keys.h>

#include <iterator>

namespace MARLINSUITE::detail {

/// A line type by its text; continuous for any other text and for a type that is none.
struct LineTypeText {
    int& LineType;

    void Read(const SectionKey& key) {
        LineType = 0;
        for (int i = 0; i < NumTypes; ++i) {
            if (icompare(key.GetValue(), ContourDefinitionList::LINESTYLES[i])) {
                LineType = i;
            }
        }
    }
    void Write(SectionKey& key) const { key << Text(); }
    [[nodiscard]] RecordValue Value() const { return Text(); }

private:
    static constexpr int NumTypes = std::size(ContourDefinitionList::LINESTYLES);

    [[nodiscard]] const std::string& Text() const {
        const bool isKnown = LineType >= 0 && LineType < NumTypes;
        return ContourDefinitionList::LINESTYLES[isKnown ? LineType : 0];
    }
};

/// The keys of a contour definition in the order in which files hold them.
template <class Keys>
void ForEachContourKey(ContourDefinitionList::ContourDefInfo& contour, const Keys& keys) {
    keys({"Level", 1, "depth of the contour"}, contour.Level);
    keys({.Name = "Color", .Field = 2, .Meaning = "color", .IsCommon = true},
         PaletteIndex(contour.Color));
    keys({.Name = "TrueColor", .Field = 2, .Meaning = "color", .IsCommon = true}, contour.Color);
    keys({.Name = "LineType", .Field = 3, .Meaning = "line type", .IsCommon = true},
         LineTypeText{contour.LineType});
    keys({.Name = "LineWidth", .Field = 4, .Meaning = "line width", .IsCommon = true},
         contour.LineWidth);
    keys({.Name = "Annotate", .Field = 5, .Meaning = "carries labels", .IsCommon = true},
         contour.Annotate);
}

}  // namespace MARLINSUITE::detail
