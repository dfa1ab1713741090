// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/settings_source.h"
#include "output/json.h"
#include "output/table.h"
#include "section_records.h"
#include <marlin/color/color_text.h>

namespace HOST {

using MARLINSUITE::ColorText;

namespace {

void AppendRecord(const Section& section, const Record& record, Output& output) {
    output.Text += output.Text.empty() ? "[" : "\n[";
    output.Text += Shown(*section.GetName()) + "] " + record.Kind;
    output.Text += record.Name.empty() ? "\n" : " " + Shown(record.Name) + "\n";
    Table table{{"Key"}, {"Value"}, {"Meaning"}};
    for (const ShownField& field : record.Fields) {
        table << (field.Key.empty() ? "(default)" : Shown(field.Key));
        if (field.Color) {
            table << *field.Color;
        } else {
            table << Shown(field.Value);
        }
        table << field.Meaning + (field.Unreadable.empty() ? "" : "; not read");
    }
    table.AppendTo(output);
}

Json JsonOf(const ShownField& field) {
    Json json = {{"key", AsUtf8(field.Key)},
                 {"value", field.Color ? ColorText(*field.Color) : AsUtf8(field.Value)},
                 {"meaning", field.Meaning}};
    if (!field.Unreadable.empty()) {
        json["unreadable"] = AsUtf8(field.Unreadable);
    }
    return json;
}

Json JsonOf(const Section& section, const Record& record) {
    Json fields = Json::array();
    for (const ShownField& field : record.Fields) {
        fields.push_back(JsonOf(field));
    }
    return {{"section", AsUtf8(*section.GetName())},
            {"record", record.Kind},
            {"name", AsUtf8(record.Name)},
            {"fields", std::move(fields)}};
}

// Returns whether the record can read all its keys.
bool ReportUnreadable(const std::string& place, const Record& record) {
    bool isReadable = true;
    for (const ShownField& field : record.Fields) {
        if (!field.Unreadable.empty()) {
            Report(place + field.Unreadable + ": cannot be read");
            isReadable = false;
        }
    }
    return isReadable;
}

struct ShowSettings {
    std::string File;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Settings file");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        SettingsSource source;
        Require(source.OpenWithSections(File));
        Json json = Json::array();
        int code = DONE;
        for (const Section& section : source.File().Sections()) {
            for (const Record& record : RecordsOf(section)) {
                const std::string place = File + ": [" + *section.GetName() + "] ";
                code = ReportUnreadable(place, record) ? code : FOUND;
                if (IsJson) {
                    json.push_back(JsonOf(section, record));
                } else {
                    AppendRecord(section, record, output);
                }
            }
        }
        if (IsJson) {
            AppendJson(json, output);
        }
        return code;
    }
};

}  // namespace

void AddShowSettings(Family& settings) {
    settings.Add<ShowSettings>("show", "Show the records of a file and what they mean");
}

}  // namespace HOST
