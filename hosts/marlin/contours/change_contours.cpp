// SPDX-License-Identifier: MIT
#include "contour_file.h"
#include "families.h"
#include "input/level.h"
#include <marlin/color/color_text.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace HOST {

using MARLINSUITE::ColorForms;
using MARLINSUITE::ParseColor;

namespace {

unsigned long ParseColorWord(const std::string& text) {
    const std::optional<RGBColor> color = ParseColor(text);
    if (!color) {
        FailOption("--color", text, ColorForms);
    }
    return static_cast<unsigned long>(*color);
}

int ParseLineType(const std::string& text) {
    const auto& names = ContourDefinitionList::LINESTYLES;
    const auto* const found = std::ranges::find_if(names, [&text](const std::string& name) {
        return MARLINSUITE::EqualIgnoringCase(text, name);
    });
    if (found == std::end(names)) {
        FailOption("--line-type", text, "continuous, dashed or dotted");
    }
    return static_cast<int>(found - std::begin(names));
}

float ParseWidth(const std::string& text) {
    float width = 0.0F;
    if (!MARLINSUITE::ParseWhole(text, width) || !std::isfinite(width) || width < 0.0F) {
        FailOption("--width", text, "a number of 0 or more");
    }
    return width;
}

bool ParseLabel(const std::string& text) {
    if (text != "on" && text != "off") {
        FailOption("--label", text, "on or off");
    }
    return text == "on";
}

std::vector<double> ParseLevels(const std::vector<std::string>& texts) {
    std::vector<double> levels;
    for (const std::string& text : texts) {
        if (!ParseLevel(text, levels.emplace_back())) {
            Fail("LEVEL: \"" + text + "\" is no number");
        }
    }
    return levels;
}

// A level that was named twice is meant once.
std::vector<double> ParseDifferentLevels(const std::vector<std::string>& texts) {
    std::vector<double> levels = ParseLevels(texts);
    std::ranges::sort(levels);
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return levels;
}

// The options that change a line; those that were not given are empty and change nothing.
struct LineOptions {
    std::string Color;
    std::string LineType;
    std::string Width;
    std::string Label;

    void Declare(Options& options) {
        options.Option("--color", Color,
                       "#rrggbb, r,g,b, r/g/b, dxf:N or the name of a basic color", "COLOR");
        options.Option("--line-type", LineType, "continuous, dashed or dotted", "TYPE");
        options.Option("--width", Width, "Line width", "NUMBER");
        options.Option("--label", Label, "on or off", "SWITCH");
    }
    [[nodiscard]] bool Empty() const {
        return Color.empty() && LineType.empty() && Width.empty() && Label.empty();
    }
    void ApplyTo(Contour& contour) const {
        contour.Color = Color.empty() ? contour.Color : ParseColorWord(Color);
        contour.LineType = LineType.empty() ? contour.LineType : ParseLineType(LineType);
        contour.LineWidth = Width.empty() ? contour.LineWidth : ParseWidth(Width);
        contour.Annotate = Label.empty() ? contour.Annotate : ParseLabel(Label);
    }
    // Fails for a value that no line takes, before a file is read.
    void Check() const {
        Contour unused;
        ApplyTo(unused);
    }
};

// The part that the three commands share: all is read and understood before anything changes.
struct ChangeContours {
    std::string File;
    std::vector<std::string> Levels;

    void Declare(Options& options) {
        options.Word("FILE", File, "Contour definition file");
        options.Words("LEVEL", Levels, "Levels, to six decimals");
    }

    [[noreturn]] void RefuseLevel(double level, const std::string& reason) const {
        Refuse(File + ": level " + LevelText(level) + " " + reason + "; nothing written");
    }
    [[nodiscard]] Contour& FindIn(ContourFile& file, double level) const {
        Contour* const contour = file.Find(level);
        if (!contour) {
            RefuseLevel(level, "is not there");
        }
        return *contour;
    }
    [[nodiscard]] static int Save(ContourFile& file, std::size_t numLevels, const std::string& done,
                                  Output& output) {
        file.Save(output);
        output.Say(CountText(numLevels, "level") + " " + done);
        return DONE;
    }
};

struct ChangeLines : ChangeContours {
    LineOptions Line;

    void Declare(Options& options) {
        ChangeContours::Declare(options);
        Line.Declare(options);
    }
};

struct SetContours : ChangeLines {
    int Run(Output& output) const {
        const std::vector<double> levels = ParseDifferentLevels(Levels);
        Line.Check();
        ContourFile file(File, ContourFile::FAILS);
        if (Line.Empty()) {
            Fail("nothing to set: --color, --line-type, --width or --label");
        }
        for (const double level : levels) {
            Line.ApplyTo(FindIn(file, level));
        }
        return Save(file, levels.size(), "set", output);
    }
};

struct AddLevels : ChangeLines {
    int Run(Output& output) const {
        const std::vector<double> levels = ParseLevels(Levels);
        Line.Check();
        ContourFile file(File, ContourFile::IS_EMPTY);
        for (const double level : levels) {
            if (file.Find(level)) {
                RefuseLevel(level, "exists");
            }
            Contour contour;
            contour.Level = level;
            Line.ApplyTo(contour);
            file.Add(contour);
        }
        return Save(file, levels.size(), file.IsNew() ? "added to a new file" : "added", output);
    }
};

struct RemoveLevels : ChangeContours {
    int Run(Output& output) const {
        const std::vector<double> levels = ParseDifferentLevels(Levels);
        ContourFile file(File, ContourFile::FAILS);
        for (const double level : levels) {
            static_cast<void>(FindIn(file, level));
            file.Remove(level);
        }
        if (file.Empty()) {
            Refuse(File + ": a contour file keeps one level at least; nothing written");
        }
        return Save(file, levels.size(), "removed", output);
    }
};

}  // namespace

void AddChangeContours(Family& contours) {
    contours.Add<SetContours>("set", "Change the lines of levels");
    contours.Add<AddLevels>("add", "Add levels; makes the file when it is missing");
    contours.Add<RemoveLevels>("remove", "Remove levels");
}

}  // namespace HOST
