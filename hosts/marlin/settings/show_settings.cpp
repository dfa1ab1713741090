// SPDX-License-Identifier: MIT
#include "input/settings_source.h"
#include "output/color_text.h"
#include "output/json.h"
#include "output/table.h"
#include "section_records.h"
#include "settings.h"

namespace HOST {

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
        table << field.Meaning;
    }
    table.AppendTo(output);
}

Json JsonOf(const ShownField& field) {
    return {{"key", AsUtf8(field.Key)},
            {"value", field.Color ? ColorText(*field.Color) : AsUtf8(field.Value)},
            {"meaning", field.Meaning}};
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
        for (const Section& section : source.File().Sections()) {
            for (const Record& record : RecordsOf(section)) {
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
        return DONE;
    }
};

}  // namespace

void AddShowSettings(Family& settings) {
    settings.Add<ShowSettings>("show", "Show the records of a file and what they mean");
}

}  // namespace HOST
