// SPDX-License-Identifier: MIT
#include "color_source.h"
#include "color_text.h"
#include "commands.h"
#include "contour_file.h"
#include "json.h"
#include "table.h"
#include <marlin/color/dxf_color.h>
#include <marlin/color/dxf_color_table.h>
#include <marlin/core/number_text.h>

#include <array>

namespace HOST {

namespace {

void AppendTable(const ContourDefinitionList& contours, Output& output) {
    Table table{{"Level", Table::RIGHT}, {"Color"}, {"DXF", Table::RIGHT}, {"Line type"},
                {"Width", Table::RIGHT}, {"Labels"}};
    for (int i = 0; i < contours.NumContours(); ++i) {
        const Contour& contour = contours[i];
        std::string width;
        MARLINSUITE::AppendShortest(width, contour.LineWidth);
        table << LevelText(contour.Level) << RGBColor(contour.Color)
              << DXFColor(contour.Color).Index()
              << ContourDefinitionList::LINESTYLES[contour.LineType] << width
              << (contour.Annotate ? "yes" : "no");
    }
    table.AppendTo(output);
}

void AppendJson(const std::string& path, const ContourDefinitionList& contours, std::string& text) {
    JsonWriter json(text);
    json.BeginObject().Name("file").Text(path);
    json.Name("contours").BeginArray();
    for (int i = 0; i < contours.NumContours(); ++i) {
        const Contour& contour = contours[i];
        json.BeginObject().Name("level").Number(contour.Level);
        json.Name("color").Text(ColorText(RGBColor(contour.Color)));
        json.Name("dxf").Number(DXFColor(contour.Color).Index());
        json.Name("lineType").Text(ContourDefinitionList::LINESTYLES[contour.LineType]);
        json.Name("lineWidth").Number(contour.LineWidth);
        json.Name("labels").Bool(contour.Annotate).EndObject();
    }
    json.EndArray().EndObject();
}

ErrorString GenerateFromRange(const std::vector<std::string>& range,
                              ContourDefinitionList& contours) {
    std::array<double, 3> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (!MARLINSUITE::ParseWhole(range[i], numbers[i])) {
            return ErrorString("--range: \"" + range[i] + "\" is no number");
        }
    }
    if (contours.Generate(numbers[0], numbers[1], numbers[2])) {
        return {};
    }
    std::string most;
    MARLINSUITE::AppendNumber(most, ContourDefinitionList::MaxGeneratedLevels);
    return ErrorString("--range: LOW must be below HIGH and INTERVAL above 0, for at most " + most +
                       " levels");
}

ErrorString GenerateFromTable(const GenerateArguments& arguments, ContourDefinitionList& contours) {
    DXFColorTable table;
    ErrorString error = ReadColors(arguments.Table, table);
    if (!error.Empty()) {
        return error;
    }
    if (arguments.SnapDxf) {
        table.MakeDXFTable();
    }
    contours.Generate(table, arguments.Invert);
    return {};
}

// The levels as the file will hold them. Where several become one, the last stands, as it does
// in a table of colors.
ContourDefinitionList StoredContours(const ContourDefinitionList& contours) {
    ContourDefinitionList stored;
    for (int i = 0; i < contours.NumContours(); ++i) {
        Contour contour = contours[i];
        contour.Level = StoredLevel(contour.Level);
        const int last = stored.NumContours() - 1;
        if (last >= 0 && stored[last].Level == contour.Level) {
            stored.Set(last, contour);
        } else {
            stored.Add(contour);
        }
    }
    return stored;
}

std::string Describe(const std::string& path, int count, int numDropped) {
    std::string text = Printable(AsUtf8(path)) + ": ";
    MARLINSUITE::AppendNumber(text, count);
    text += count == 1 ? " level\n" : " levels\n";
    if (numDropped > 0) {
        MARLINSUITE::AppendNumber(text, numDropped);
        text += " left out: the next has the same level in six decimals\n";
    }
    return text;
}

}  // namespace

int ListContours(const std::string& path, Output& output) {
    ContourDefinitionList contours;
    if (const ErrorString error = ReadContours(path, contours); !error.Empty()) {
        return Unusable(error);
    }
    if (output.Json) {
        AppendJson(path, contours, output.Text);
    } else {
        AppendTable(contours, output);
    }
    return DONE;
}

int GenerateContours(const GenerateArguments& arguments, Output& output) {
    if (arguments.Range.empty() && arguments.Table.empty()) {
        return Unusable("--range or --table is required");
    }
    ContourDefinitionList generated;
    const ErrorString error = arguments.Table.empty()
                                  ? GenerateFromRange(arguments.Range, generated)
                                  : GenerateFromTable(arguments, generated);
    if (!error.Empty()) {
        return Unusable(error);
    }
    if (generated.NumContours() == 0) {
        return Refused("no multiple of the interval lies in the range; nothing written");
    }
    const ContourDefinitionList contours = StoredContours(generated);
    if (!contours.Save(arguments.OutFile.c_str())) {
        return Unusable(ErrorString::LastError());
    }
    output.Text += Describe(arguments.OutFile, contours.NumContours(),
                            generated.NumContours() - contours.NumContours());
    return DONE;
}

}  // namespace HOST
