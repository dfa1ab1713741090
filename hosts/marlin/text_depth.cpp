// SPDX-License-Identifier: MIT
#include "commands.h"
#include "table.h"
#include "text_style.h"
#include <marlin/core/number_text.h>

#include <cmath>
#include <utility>

namespace HOST {

namespace {

using Label = std::pair<TextRectComp::LabelPart, TextRectComp::LabelPart>;

struct Measured {
    double Depth = 0;
    Label Parts;
};

ErrorString ParseDepths(const std::vector<std::string>& texts, std::vector<double>& depths) {
    for (const std::string& text : texts) {
        double depth = 0;
        if (!MARLINSUITE::ParseWhole(text, depth) || !std::isfinite(depth)) {
            return ErrorString("\"" + text + "\" is no depth");
        }
        depths.push_back(depth);
    }
    return {};
}

// A label in one piece has a second part of no size, which is left out.
bool HasDecimals(const Label& label) {
    return label.second.first.width > 0;
}

void AppendRow(const TextRectComp::LabelPart& part, Table& table) {
    table << Shown(part.second) << LengthText(part.first.width) << LengthText(part.first.height)
          << CornersText(part.first);
}

void AppendTable(const std::vector<Measured>& labels, Output& output) {
    Table table{{"Part"}, {"Text"}, {"Width", Table::RIGHT}, {"Height", Table::RIGHT}, {"Corners"}};
    for (const Measured& label : labels) {
        table << (HasDecimals(label.Parts) ? "integers" : "whole");
        AppendRow(label.Parts.first, table);
        if (HasDecimals(label.Parts)) {
            table << "decimals";
            AppendRow(label.Parts.second, table);
        }
    }
    table.AppendTo(output);
}

void AppendPart(const char* name, const TextRectComp::LabelPart& part, JsonWriter& json) {
    json.Name(name).BeginObject().Name("text").Text(part.second);
    AppendRect(part.first, json);
    json.EndObject();
}

void AppendJson(const std::vector<Measured>& labels, JsonWriter& json) {
    json.Name("labels").BeginArray();
    for (const Measured& label : labels) {
        json.BeginObject().Name("depth").Number(label.Depth);
        AppendPart("integers", label.Parts.first, json);
        AppendPart("decimals", label.Parts.second, json);
        json.EndObject();
    }
    json.EndArray();
}

}  // namespace

int MeasureDepths(const TextArguments& arguments, Output& output) {
    DepthLabelInfo style;
    std::vector<double> depths;
    for (const ErrorString& error :
         {ParseLabelStyle(arguments, style), ParseDepths(arguments.Texts, depths)}) {
        if (!error.Empty()) {
            return Unusable(error);
        }
    }
    PLATFORM::FontMatch face;
    if (const ErrorString error = FindFace(style, face); !error.Empty()) {
        return Refused(error.Text());
    }
    std::vector<Measured> labels;
    labels.reserve(depths.size());
    for (const double depth : depths) {
        TextRectComp rects;
        labels.push_back({depth, rects(style, depth)});
    }
    if (output.Json) {
        JsonWriter json(output.Text);
        json.BeginObject();
        AppendFace(style, face, json);
        AppendJson(labels, json);
        json.EndObject();
    } else {
        AppendSubstitution(style, face, output.Text);
        AppendTable(labels, output);
    }
    return DONE;
}

}  // namespace HOST
