// SPDX-License-Identifier: MIT
#include "color_source.h"
#include "color_text.h"
#include "commands.h"
#include "contour_file.h"
#include "json.h"
#include "table.h"
#include <marlin/base/files/file_object.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/number_text.h>

namespace HOST {

namespace {

void AppendColor(JsonWriter& json, const RGBColor& color) {
    json.Name("color").Text(ColorText(color));
    json.Name("dxf").Number(DXFColor(color).Index());
}

void AppendTable(const ColorTable& colors, Output& output) {
    Table table{{"From", Table::RIGHT}, {"Color"}, {"DXF", Table::RIGHT}};
    const RGBColor below(colors.BelowColor());
    table << "below" << below << DXFColor(below).Index();
    for (int i = 0; i < colors.NumEntries(); ++i) {
        const RGBColor color(colors.EntryColor(i));
        table << LevelText(StoredLevel(colors.EntryValue(i))) << color << DXFColor(color).Index();
    }
    table.AppendTo(output);
}

void AppendJson(const std::string& path, const ColorTable& colors, std::string& text) {
    JsonWriter json(text);
    json.BeginObject().Name("file").Text(path);
    json.Name("below").BeginObject();
    AppendColor(json, RGBColor(colors.BelowColor()));
    json.EndObject();
    json.Name("entries").BeginArray();
    for (int i = 0; i < colors.NumEntries(); ++i) {
        json.BeginObject().Name("value").Number(colors.EntryValue(i));
        AppendColor(json, RGBColor(colors.EntryColor(i)));
        json.EndObject();
    }
    json.EndArray().EndObject();
}

struct DxfMatch {
    std::string Argument;
    RGBColor Color;
    DXFColor Index;
};

void AppendMatches(const std::vector<DxfMatch>& matches, Output& output) {
    if (output.Json) {
        JsonWriter json(output.Text);
        json.BeginArray();
        for (const DxfMatch& match : matches) {
            json.BeginObject().Name("argument").Text(match.Argument);
            AppendColor(json, match.Color);
            json.Name("palette").Text(ColorText(RGBColor(match.Index))).EndObject();
        }
        json.EndArray();
        return;
    }
    Table table{{"Color"}, {"DXF", Table::RIGHT}, {"Palette"}};
    for (const DxfMatch& match : matches) {
        table << match.Color << match.Index.Index() << RGBColor(match.Index);
    }
    table.AppendTo(output);
}

}  // namespace

int ShowColors(const std::string& path, Output& output) {
    ColorTable colors;
    if (const ErrorString error = ReadColors(path, colors); !error.Empty()) {
        return Unusable(error);
    }
    if (output.Json) {
        AppendJson(path, colors, output.Text);
    } else {
        AppendTable(colors, output);
    }
    return DONE;
}

int ConvertColors(const std::string& from, const std::string& to, Output& output) {
    if (HasExtension(to, "cpt")) {
        return Unusable(to + ": only color tables (.col) are written");
    }
    ColorTable colors;
    if (const ErrorString error = ReadColors(from, colors); !error.Empty()) {
        return Unusable(error);
    }
    FileObject file;
    constexpr unsigned int writeFlags = 0x1011;  // create, write, deny others all
    if (!colors.FileSave(file)) {
        return Refused(from + ": a value that is not finite");
    }
    if (!file.FileSave(CString(to.c_str()), writeFlags)) {
        return Unusable(ErrorString::LastError());
    }
    output.Text += Printable(AsUtf8(to)) + ": ";
    MARLINSUITE::AppendNumber(output.Text, colors.NumEntries());
    output.Text += colors.NumEntries() == 1 ? " entry\n" : " entries\n";
    return DONE;
}

int FindDxfColors(const std::vector<std::string>& colors, Output& output) {
    std::vector<DxfMatch> matches;
    for (const std::string& argument : colors) {
        const std::optional<RGBColor> color = ParseColor(argument);
        if (!color) {
            return Unusable("\"" + argument + "\" is no color: " + std::string(ColorForms));
        }
        matches.push_back({argument, *color, DXFColor(*color)});
    }
    AppendMatches(matches, output);
    return DONE;
}

}  // namespace HOST
