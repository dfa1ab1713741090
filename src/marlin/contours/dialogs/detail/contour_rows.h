// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/text/c_string.h>

#include <vector>

class CImageList;
class CListCtrl;
class ContourDefinitionList;

namespace MARLINSUITE::detail {

// The rows of the contour editor's list. They show the definitions from the highest level down.

/// A level as it is shown: with two decimals, in every locale.
[[nodiscard]] CString LevelText(double level);

void InsertContourColumns(CListCtrl& list);
/// Replaces the rows by those of the definitions, and the images by one swatch for each of them.
void ShowContours(const ContourDefinitionList& definitions, CImageList& swatches, CListCtrl& list);

/// The first row that shows this level, -1 for none. Levels are compared as they are shown.
[[nodiscard]] int RowOfLevel(const CListCtrl& list, double level);
/// From the top.
[[nodiscard]] std::vector<int> SelectedRows(const CListCtrl& list);

}  // namespace MARLINSUITE::detail
