// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/platform/drawing/rect.h>
#include <marlin/platform/text/c_string.h>

class CDC;
class CImageList;
class CListCtrl;

namespace MARLINSUITE::detail {

// The rows of the contour editor's list. They show the definitions from the highest level down.

/// A level as it is shown: with two decimals, in every locale.
[[nodiscard]] CString LevelText(double level);

void InsertContourColumns(CListCtrl& list);
/// Makes one swatch for each definition; those of one color share their pixels.
void MakeSwatches(const ContourDefinitionList& definitions, CImageList& swatches);

[[nodiscard]] CString CellText(const ContourDefinitionList::ContourDefInfo& definition, int column);
/// What a row shows by colors and lines, in words.
[[nodiscard]] CString TipText(const ContourDefinitionList::ContourDefInfo& definition);
/// Draws the line of a definition beside its type, as it will be on paper, and moves the place of
/// the text. False, and nothing drawn, in another column.
bool DrawLineSample(const ContourDefinitionList::ContourDefInfo& definition, int column, CDC& dc,
                    const RECT& cell, RECT& text);

/// The highest definition that is shown with the same text as this level, -1 for none.
[[nodiscard]] int IndexOfLevel(const ContourDefinitionList& definitions, double level);

}  // namespace MARLINSUITE::detail
