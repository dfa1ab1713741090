// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/dialogs/detail/contour_rows.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/c_list_ctrl.h>
#include <marlin/resources/texts.h>

namespace MARLINSUITE::detail {

namespace {

enum COLUMN { LEVEL, ANNOTATION, WIDTH, TYPE };

constexpr int swatchSize = 16;
// The mask color, so that black definitions have no swatch.
constexpr COLORREF black = 0;

CString Fixed(double value, int decimals) {
    std::string text;
    AppendFixed(text, value, decimals);
    return CString(text);
}

void InsertColumn(CListCtrl& list, COLUMN column, MESSAGE heading, int width) {
    list.InsertColumn(column, CString(Message(heading)), LVCFMT_LEFT, width);
}

void FillSwatches(const ContourDefinitionList& definitions, CImageList& swatches) {
    CDC dc;
    CBitmap surface;
    swatches.DeleteImageList();
    swatches.Create(swatchSize, swatchSize, ILC_COLOR32 | ILC_MASK, definitions.NumContours(), 1);
    dc.CreateCompatibleDC(nullptr);
    surface.CreateCompatibleBitmap(&dc, swatchSize, swatchSize);
    CGdiObject* const before = dc.SelectObject(&surface);
    const RECT swatch = {0, 0, swatchSize, swatchSize};
    for (int index = 0; index < definitions.NumContours(); ++index) {
        CBrush brush(definitions[index].Color);
        dc.FillRect(&swatch, &brush);
        swatches.Add(&surface, black);
    }
    dc.SelectObject(before);
}

void AppendRow(const ContourDefinitionList& definitions, int index, CListCtrl& list) {
    const ContourDefinitionList::ContourDefInfo& shown = definitions[index];
    const auto width = static_cast<double>(shown.LineWidth);
    CString type;
    CMarlinString(CString(Message(MESSAGE::LINE_TYPES)), ',').GetItem(shown.LineType, type);
    const int row = list.InsertItem(list.GetItemCount(), LevelText(shown.Level), index);
    list.SetItemText(row, ANNOTATION, shown.Annotate ? "Yes" : "No");
    list.SetItemText(row, WIDTH, Fixed(width, 1));
    list.SetItemText(row, TYPE, type);
}

}  // namespace

CString LevelText(double level) {
    return Fixed(level, 2);
}

void InsertContourColumns(CListCtrl& list) {
    InsertColumn(list, LEVEL, MESSAGE::COLUMN_LEVEL, 70);
    InsertColumn(list, ANNOTATION, MESSAGE::COLUMN_ANNOTATION, 50);
    InsertColumn(list, WIDTH, MESSAGE::COLUMN_WIDTH, 50);
    InsertColumn(list, TYPE, MESSAGE::COLUMN_TYPE, 50);
}

void ShowContours(const ContourDefinitionList& definitions, CImageList& swatches, CListCtrl& list) {
    FillSwatches(definitions, swatches);
    list.SetImageList(&swatches, LVSIL_SMALL);
    list.DeleteAllItems();
    for (int index = definitions.NumContours() - 1; index >= 0; --index) {
        AppendRow(definitions, index, list);
    }
}

int RowOfLevel(const CListCtrl& list, double level) {
    const CString text = LevelText(level);
    const int count = list.GetItemCount();
    for (int row = 0; row < count; ++row) {
        if (list.GetItemText(row, LEVEL) == text) {
            return row;
        }
    }
    return -1;
}

std::vector<int> SelectedRows(const CListCtrl& list) {
    std::vector<int> rows;
    int row = list.GetNextItem(-1, LVNI_SELECTED);
    while (row >= 0) {
        rows.push_back(row);
        row = list.GetNextItem(row, LVNI_SELECTED);
    }
    return rows;
}

}  // namespace MARLINSUITE::detail
