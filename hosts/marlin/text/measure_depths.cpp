// SPDX-License-Identifier: MIT
#include "families.h"
#include "measurement.h"
#include "style_options.h"
#include <marlin/core/number_text.h>
#include <marlin/records/depth_label_info.h>

#include <cmath>

namespace HOST {

namespace {

std::vector<double> ParseDepths(const std::vector<std::string>& texts) {
    std::vector<double> depths;
    for (const std::string& text : texts) {
        double& depth = depths.emplace_back();
        if (!MARLINSUITE::ParseWhole(text, depth) || !std::isfinite(depth)) {
            Fail("\"" + text + "\" is no depth");
        }
    }
    return depths;
}

void AppendRow(const char* name, const TextRectComp::LabelPart& part, Table& table) {
    table << name << Shown(part.second) << LengthText(part.first.width)
          << LengthText(part.first.height) << CornersText(part.first);
}

Json JsonOf(const TextRectComp::LabelPart& part) {
    Json json = {{"text", AsUtf8(part.second)}};
    AddRect(part.first, json);
    return json;
}

struct MeasureDepths {
    StyleOptions Style;
    bool IsJson = false;
    std::string Presentation;
    std::string Placement;
    std::string Precision;
    std::vector<std::string> Depths;

    void Declare(Options& options) {
        Style.Declare(options);
        options.Json(IsJson);
        options.Option("--presentation", Presentation, "How decimals are set apart: 0 to 4",
                       "CODE");
        options.Option("--placement", Placement, "What lies on the position: 0 to 2", "CODE");
        options.Option("--precision", Precision, "Number of decimals; 2 if not given", "NUMBER");
        options.Words("DEPTH", Depths, "Depths");
    }

    [[nodiscard]] DepthLabelInfo ParsedStyle() const;
    int Run(Output& output) const;
};

DepthLabelInfo MeasureDepths::ParsedStyle() const {
    DepthLabelInfo style;
    int presentation = style.Presentation();
    int placement = style.Placement();
    int precision = style.Precision();
    Style.ApplyTo(style);
    ParseCode("--presentation", Presentation, 4, presentation);
    ParseCode("--placement", Placement, 2, placement);
    ParseCode("--precision", Precision, TextRectComp::MaxDecimals, precision);
    style.SetPresentation(static_cast<DepthLabelInfo::PRESENTATION>(presentation));
    style.SetPlacement(static_cast<DepthLabelInfo::PLACEMENT>(placement));
    style.SetPrecision(precision);
    return style;
}

int MeasureDepths::Run(Output& output) const {
    const DepthLabelInfo style = ParsedStyle();
    const std::vector<double> depths = ParseDepths(Depths);
    const Measurement measurement(style);
    Table table{{"Part"}, {"Text"}, {"Width", Table::RIGHT}, {"Height", Table::RIGHT}, {"Corners"}};
    Json json = Json::array();
    for (const double depth : depths) {
        TextRectComp rects;
        const auto [integers, decimals] = rects(style, depth);
        // A label in one piece has decimals of no size, which the table leaves out.
        const bool hasDecimals = decimals.first.width > 0;
        AppendRow(hasDecimals ? "integers" : "whole", integers, table);
        if (hasDecimals) {
            AppendRow("decimals", decimals, table);
        }
        json.push_back({{"depth", JsonNumber(depth)},
                        {"integers", JsonOf(integers)},
                        {"decimals", JsonOf(decimals)}});
    }
    if (IsJson) {
        measurement.Append("labels", std::move(json), output);
    } else {
        measurement.Append(table, output);
    }
    return DONE;
}

}  // namespace

void AddMeasureDepths(Family& text) {
    text.Add<MeasureDepths>("depth", "Measure depth labels");
}

}  // namespace HOST
