// SPDX-License-Identifier: MIT
#include "color_text.h"
#include "commands.h"
#include "contour_file.h"
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <cmath>
#include <optional>
#include <string_view>

namespace HOST {

namespace {

// What the options change; what was not given stays.
struct Changes {
    std::optional<unsigned long> Color;
    std::optional<int> LineType;
    std::optional<float> LineWidth;
    std::optional<bool> Annotate;

    [[nodiscard]] bool Empty() const noexcept {
        return !Color && !LineType && !LineWidth && !Annotate;
    }
    void ApplyTo(Contour& contour) const {
        contour.Color = Color.value_or(contour.Color);
        contour.LineType = LineType.value_or(contour.LineType);
        contour.LineWidth = LineWidth.value_or(contour.LineWidth);
        contour.Annotate = Annotate.value_or(contour.Annotate);
    }
};

std::optional<unsigned long> ParseColorWord(std::string_view text) {
    const std::optional<RGBColor> color = ParseColor(text);
    return color ? std::optional(static_cast<unsigned long>(*color)) : std::nullopt;
}

std::optional<int> ParseLineType(std::string_view text) {
    int type = 0;
    for (const std::string& name : ContourDefinitionList::LINESTYLES) {
        if (PLATFORM::EqualIgnoringCase(text, name)) {
            return type;
        }
        ++type;
    }
    return std::nullopt;
}

std::optional<float> ParseWidth(std::string_view text) {
    float width = 0.0F;
    const bool isWidth = MARLINSUITE::ParseWhole(text, width) && std::isfinite(width);
    return isWidth && width >= 0.0F ? std::optional(width) : std::nullopt;
}

std::optional<bool> ParseLabel(std::string_view text) {
    return text == "on" ? std::optional(true) : text == "off" ? std::optional(false) : std::nullopt;
}

// False, with a message, for a text that does not parse; an empty one changes nothing.
template <class T>
ErrorString Parse(const char* option, const std::string& text,
                  std::optional<T> (*parse)(std::string_view), std::optional<T>& value,
                  std::string_view forms) {
    value = text.empty() ? std::nullopt : parse(text);
    if (value || text.empty()) {
        return {};
    }
    return ErrorString(std::string(option) + ": \"" + text + "\" is not " + std::string(forms));
}

ErrorString ParseChanges(const ContourArguments& arguments, Changes& changes) {
    ErrorString error =
        Parse("--color", arguments.Color, ParseColorWord, changes.Color, ColorForms);
    if (error.Empty()) {
        error = Parse("--line-type", arguments.LineType, ParseLineType, changes.LineType,
                      "continuous, dashed or dotted");
    }
    if (error.Empty()) {
        error = Parse("--width", arguments.Width, ParseWidth, changes.LineWidth,
                      "a number of 0 or more");
    }
    if (error.Empty()) {
        error = Parse("--label", arguments.Label, ParseLabel, changes.Annotate, "on or off");
    }
    return error;
}

ErrorString ParseLevels(const std::vector<std::string>& texts, std::vector<double>& levels) {
    for (const std::string& text : texts) {
        double level = 0.0;
        if (!ParseLevel(text, level)) {
            return ErrorString("LEVEL: \"" + text + "\" is no number");
        }
        levels.push_back(level);
    }
    return {};
}

// One command on its way: all is read and understood before anything is changed.
struct Edit {
    Changes Options;
    std::vector<double> Levels;
    ContourFile File;

    [[nodiscard]] ErrorString Prepare(const ContourArguments& arguments, bool canBeNew) {
        ErrorString error = ParseLevels(arguments.Levels, Levels);
        if (error.Empty()) {
            error = ParseChanges(arguments, Options);
        }
        return error.Empty() ? File.Open(arguments.File, canBeNew) : error;
    }

    [[nodiscard]] int Save(std::string_view done, Output& output) {
        if (const ErrorString error = File.Save(); !error.Empty()) {
            return Unusable(error);
        }
        MARLINSUITE::AppendNumber(output.Text, static_cast<int>(Levels.size()));
        output.Text.append(Levels.size() == 1 ? " level " : " levels ").append(done).append("\n");
        return DONE;
    }
};

std::string LevelMessage(const std::string& path, double level, std::string_view what) {
    return path + ": level " + LevelText(level) + " " + std::string(what) + "; nothing written";
}

}  // namespace

int SetContours(const ContourArguments& arguments, Output& output) {
    Edit edit;
    if (const ErrorString error = edit.Prepare(arguments, false); !error.Empty()) {
        return Unusable(error);
    }
    if (edit.Options.Empty()) {
        return Unusable("nothing to set: --color, --line-type, --width or --label");
    }
    for (const double level : edit.Levels) {
        Contour* const contour = edit.File.Find(level);
        if (!contour) {
            return Refused(LevelMessage(arguments.File, level, "is not there"));
        }
        edit.Options.ApplyTo(*contour);
    }
    return edit.Save("set", output);
}

int AddContours(const ContourArguments& arguments, Output& output) {
    Edit edit;
    if (const ErrorString error = edit.Prepare(arguments, true); !error.Empty()) {
        return Unusable(error);
    }
    for (const double level : edit.Levels) {
        if (edit.File.Find(level)) {
            return Refused(LevelMessage(arguments.File, level, "exists"));
        }
        Contour contour;
        contour.Level = level;
        edit.Options.ApplyTo(contour);
        edit.File.Add(contour);
    }
    return edit.Save(edit.File.IsNew() ? "added to a new file" : "added", output);
}

int RemoveContours(const ContourArguments& arguments, Output& output) {
    Edit edit;
    if (const ErrorString error = edit.Prepare(arguments, false); !error.Empty()) {
        return Unusable(error);
    }
    for (const double level : edit.Levels) {
        if (!edit.File.Find(level)) {
            return Refused(LevelMessage(arguments.File, level, "is not there"));
        }
        edit.File.Remove(level);
    }
    if (edit.File.Empty()) {
        return Refused(arguments.File +
                       ": a contour file keeps one level at least; nothing written");
    }
    return edit.Save("removed", output);
}

}  // namespace HOST
