// SPDX-License-Identifier: MIT
#include "contour_file.h"
#include "families.h"
#include "input/color_source.h"
#include "input/files.h"
#include "input/level.h"
#include "level_range.h"
#include <marlin/color/dxf_color_table.h>

namespace HOST {

namespace {

ContourDefinitionList GenerateFromRange(const std::vector<std::string>& range) {
    ContourDefinitionList contours;
    Contour contour;
    for (const double level : LevelsInRange(range)) {
        contour.Level = level;
        contours.Add(contour);
    }
    return contours;
}

// The levels as the file will hold them. Where several become one, the last stays, as it does in
// a table of colors.
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

std::string TextOf(const ContourDefinitionList& contours) {
    std::string text;
    for (int i = 0; i < contours.NumContours(); ++i) {
        Section section(ContourDefinitionList::SectionName(i));
        contours[i].Write(section);
        section.AppendTo(text);
    }
    return text;
}

struct GenerateContours {
    std::vector<std::string> Range;
    std::string Table;
    bool Invert = false;
    bool SnapDxf = false;
    std::string OutFile;

    void Declare(Options& options) {
        options.Triple("--range", Range, "Lowest and highest level, and the interval",
                       "LOW HIGH INTERVAL");
        options.Option("--table", Table, "Color table (.col) or palette (.cpt)", "FILE");
        options.Exclude("--range", "--table");
        options.Flag("--invert", Invert, "Invert the table's colors");
        options.Need("--invert", "--table");
        options.Flag("--snap-dxf", SnapDxf, "Use the nearest colors of the DXF palette");
        options.Need("--snap-dxf", "--table");
        options.RequiredOption("-o,--output", OutFile, "The file to write", "FILE");
    }

    int Run(Output& output) const;

private:
    [[nodiscard]] ContourDefinitionList GenerateFromTable() const;
};

ContourDefinitionList GenerateContours::GenerateFromTable() const {
    DXFColorTable table;
    RequireOther(Table, OutFile);
    ReadColors(Table, table);
    if (SnapDxf) {
        table.MakeDXFTable();
    }
    ContourDefinitionList contours;
    contours.Generate(table, Invert);
    return contours;
}

int GenerateContours::Run(Output& output) const {
    if (Range.empty() && Table.empty()) {
        Fail("--range or --table is required");
    }
    const ContourDefinitionList generated =
        Table.empty() ? GenerateFromRange(Range) : GenerateFromTable();
    if (generated.NumContours() == 0) {
        Refuse("no multiple of the interval lies in the range; nothing written");
    }
    const ContourDefinitionList contours = StoredContours(generated);
    WriteFile(OutFile, TextOf(contours), output);
    if (const int numDropped = generated.NumContours() - contours.NumContours(); numDropped > 0) {
        Report(NumberText(numDropped) + " left out: the next has the same level in six decimals");
    }
    output.Say(OutFile + ": " +
               CountText(static_cast<std::size_t>(contours.NumContours()), "level"));
    return DONE;
}

}  // namespace

void AddGenerateContours(Family& contours) {
    contours.Add<GenerateContours>("generate", "Make a file from a range or from a color table");
}

}  // namespace HOST
