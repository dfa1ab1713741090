// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/color_source.h"
#include "input/files.h"
#include "input/level.h"
#include "output/json.h"
#include "output/table.h"
#include <marlin/base/files/file_object.h>
#include <marlin/color/color_text.h>
#include <marlin/color/dxf_color.h>
#include <marlin/settings/ini_file.h>

namespace HOST {

using MARLINSUITE::ColorForms;
using MARLINSUITE::ColorText;
using MARLINSUITE::ParseColor;

namespace {

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

Json JsonOf(const std::string& path, const ColorTable& colors) {
    const RGBColor below(colors.BelowColor());
    Json entries = Json::array();
    for (int i = 0; i < colors.NumEntries(); ++i) {
        const RGBColor color(colors.EntryColor(i));
        entries.push_back({{"value", JsonNumber(colors.EntryValue(i))},
                           {"color", ColorText(color)},
                           {"dxf", DXFColor(color).Index()}});
    }
    return {{"file", AsUtf8(path)},
            {"below", {{"color", ColorText(below)}, {"dxf", DXFColor(below).Index()}}},
            {"entries", std::move(entries)}};
}

struct ConvertColors {
    std::string From;
    std::string To;

    void Declare(Options& options) {
        options.Word("IN", From, "Palette or color table");
        options.Word("OUT", To, "Color table to write");
    }

    int Run(Output& output) const {
        if (HasExtension(To, "cpt")) {
            Fail(To + ": only color tables (.col) are written");
        }
        RequireOther(From, To);
        ColorTable colors;
        ReadColors(From, colors);
        FileObject file;
        if (!colors.FileSave(file)) {
            Refuse(From + ": a value that is not finite");
        }
        IniFile sections;
        sections.Open(file);
        WriteFile(To, sections.Text(), output);
        output.Say(To + ": " + NumberText(colors.NumEntries()) +
                   (colors.NumEntries() == 1 ? " entry" : " entries"));
        return DONE;
    }
};

struct ShowColors {
    std::string File;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Color table or palette");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        ColorTable colors;
        ReadColors(File, colors);
        if (IsJson) {
            AppendJson(JsonOf(File, colors), output);
        } else {
            AppendTable(colors, output);
        }
        return DONE;
    }
};

struct FindDxfColors {
    std::vector<std::string> Colors;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Words("COLOR", Colors, "#rrggbb, r,g,b, r/g/b, dxf:N or the name of a basic color");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        Json json = Json::array();
        Table table{{"Color"}, {"DXF", Table::RIGHT}, {"Palette"}};
        for (const std::string& argument : Colors) {
            const std::optional<RGBColor> color = ParseColor(argument);
            if (!color) {
                Fail("\"" + argument + "\" is no color: " + std::string(ColorForms));
            }
            const DXFColor nearest(*color);
            table << *color << nearest.Index() << RGBColor(nearest);
            json.push_back({{"argument", AsUtf8(argument)},
                            {"color", ColorText(*color)},
                            {"dxf", nearest.Index()},
                            {"palette", ColorText(RGBColor(nearest))}});
        }
        if (IsJson) {
            AppendJson(json, output);
        } else {
            table.AppendTo(output);
        }
        return DONE;
    }
};

}  // namespace

void AddColors(Family& program) {
    Family colors = program.AddFamily("colors", "Color tables (.col), palettes (.cpt), DXF");
    colors.Add<ConvertColors>("convert", "Write a palette as a color table");
    colors.Add<ShowColors>("show", "Show a color table or a palette");
    colors.Add<FindDxfColors>("dxf", "Find the palette index of colors");
}

}  // namespace HOST
