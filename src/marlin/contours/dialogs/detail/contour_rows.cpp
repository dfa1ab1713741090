// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/color/color_text.h>
#include <marlin/color/dxf_color.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/dialogs/detail/contour_rows.h>
#include <marlin/core/number_text.h>
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/c_list_ctrl.h>
#include <marlin/resources/texts.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>

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

CString LineTypeName(int type) {
    CString name;
    CMarlinString(CString(Message(MESSAGE::LINE_TYPES)), ',').GetItem(type, name);
    return name;
}

// In the middle of the paper, as wide as on a plot at 4 pixels a millimetre of a row of 16 pixels.
void DrawDashes(const ContourDefinitionList::ContourDefInfo& definition, CDC& dc,
                const RECT& paper) {
    struct Pattern {
        int Dash;
        int Gap;
    };
    constexpr Pattern patterns[] = {{1, 0}, {8, 4}, {2, 2}};  // of a row of 16 pixels
    const int type = definition.LineType;
    const Pattern& pattern = patterns[type >= 0 && type < 3 ? type : 0];
    const double pixel = (paper.bottom - paper.top) / 16.0;
    const auto scaled = [pixel](double size) {
        return std::max(1, static_cast<int>(size * pixel));
    };
    const double widest = (paper.bottom - paper.top) - 4.0;
    const int width = static_cast<int>(
        std::clamp(4.0 * pixel * static_cast<double>(definition.LineWidth), 1.0, widest));
    const int top = (paper.top + paper.bottom - width) / 2;
    const int right = paper.right - 2;
    const int dash = pattern.Gap == 0 ? right - paper.left : scaled(pattern.Dash);
    CBrush brush(definition.Color);
    for (int left = paper.left + 2; left < right; left += dash + scaled(pattern.Gap)) {
        const RECT part = {left, top, std::min(left + dash, right), top + width};
        dc.FillRect(&part, &brush);
    }
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

void MakeSwatches(const ContourDefinitionList& definitions, CImageList& swatches) {
    CDC dc;
    CBitmap surface;
    swatches.DeleteImageList();
    swatches.Create(swatchSize, swatchSize, ILC_COLOR32 | ILC_MASK, definitions.NumContours(), 1);
    dc.CreateCompatibleDC(nullptr);
    surface.CreateCompatibleBitmap(&dc, swatchSize, swatchSize);
    CGdiObject* const before = dc.SelectObject(&surface);
    const RECT swatch = {0, 0, swatchSize, swatchSize};
    std::unordered_map<unsigned long, int> imageOfColor;
    for (int index = 0; index < definitions.NumContours(); ++index) {
        const auto [known, isNew] = imageOfColor.try_emplace(definitions[index].Color, index);
        if (isNew) {
            CBrush brush(definitions[index].Color);
            dc.FillRect(&swatch, &brush);
            swatches.Add(&surface, black);
        } else {
            swatches.SetImageCount(static_cast<UINT>(index) + 1);
            swatches.Copy(index, known->second);
        }
    }
    dc.SelectObject(before);
}

CString CellText(const ContourDefinitionList::ContourDefInfo& definition, int column) {
    switch (column) {
        case LEVEL:
            return LevelText(definition.Level);
        case ANNOTATION:
            return definition.Annotate ? "Yes" : "No";
        case WIDTH:
            return Fixed(static_cast<double>(definition.LineWidth), 1);
        default:
            return LineTypeName(definition.LineType);
    }
}

CString TipText(const ContourDefinitionList::ContourDefInfo& definition) {
    const RGBColor color(definition.Color);
    std::string text = "Color " + ColorText(color) + ", nearest palette index ";
    AppendNumber(text, DXFColor(color).Index());
    return CString(text + ", ") + LineTypeName(definition.LineType) + ", width " +
           CellText(definition, WIDTH);
}

int IndexOfLevel(const ContourDefinitionList& definitions, double level) {
    const CString text = LevelText(level);
    constexpr double mostApart = 0.011;  // of two levels that are shown alike
    for (int index = definitions.NumContours() - 1; index >= 0; --index) {
        const double shown = definitions[index].Level;
        const bool isNear = shown == level || std::abs(shown - level) <= mostApart;
        if (isNear && LevelText(shown) == text) {
            return index;
        }
    }
    return -1;
}

bool DrawLineSample(const ContourDefinitionList::ContourDefInfo& definition, int column, CDC& dc,
                    const RECT& cell, RECT& text) {
    if (column != TYPE) {
        return false;
    }
    // A strip of paper, since a line is drawn on paper and not on the desktop's background.
    const int height = cell.bottom - cell.top;
    const int margin = height / 8;
    const RECT paper = {cell.left + margin, cell.top + margin, cell.left + margin + 2 * height,
                        cell.bottom - margin};
    CBrush white(RGBColor(255, 255, 255));
    CBrush edge(RGBColor(128, 128, 128));
    dc.FillRect(&paper, &white);
    dc.FrameRect(&paper, &edge);
    DrawDashes(definition, dc, paper);
    text.left = paper.right + margin;
    return true;
}

}  // namespace MARLINSUITE::detail
