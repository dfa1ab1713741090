// SPDX-License-Identifier: MIT
#include "contour_file.h"
#include "families.h"
#include "input/level.h"
#include "output/json.h"
#include "output/table.h"
#include <marlin/color/color_text.h>
#include <marlin/color/dxf_color.h>

namespace HOST {

using MARLINSUITE::ColorText;

namespace {

void AppendTable(const ContourDefinitionList& contours, Output& output) {
    Table table{{"Level", Table::RIGHT}, {"Color"}, {"DXF", Table::RIGHT}, {"Line type"},
                {"Width", Table::RIGHT}, {"Labels"}};
    for (int i = 0; i < contours.NumContours(); ++i) {
        const Contour& contour = contours[i];
        table << LevelText(contour.Level) << RGBColor(contour.Color)
              << DXFColor(contour.Color).Index()
              << ContourDefinitionList::LINESTYLES[contour.LineType]
              << NumberText(contour.LineWidth) << (contour.Annotate ? "yes" : "no");
    }
    table.AppendTo(output);
}

Json JsonOf(const ContourDefinitionList& contours) {
    Json list = Json::array();
    for (int i = 0; i < contours.NumContours(); ++i) {
        const Contour& contour = contours[i];
        list.push_back({{"level", JsonNumber(contour.Level)},
                        {"color", ColorText(RGBColor(contour.Color))},
                        {"dxf", DXFColor(contour.Color).Index()},
                        {"lineType", ContourDefinitionList::LINESTYLES[contour.LineType]},
                        {"lineWidth", JsonNumber(contour.LineWidth)},
                        {"labels", contour.Annotate}});
    }
    return list;
}

struct ListContours {
    std::string File;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Contour definition file");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        const ContourDefinitionList contours = ReadContours(File);
        if (IsJson) {
            AppendJson({{"file", AsUtf8(File)}, {"contours", JsonOf(contours)}}, output);
        } else {
            AppendTable(contours, output);
        }
        return DONE;
    }
};

}  // namespace

void AddListContours(Family& contours) {
    contours.Add<ListContours>("list", "Show the levels of a file");
}

}  // namespace HOST
