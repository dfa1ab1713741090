// SPDX-License-Identifier: MIT
#include "color_text.h"
#include "commands.h"
#include "json.h"
#include "record.h"
#include "settings_source.h"
#include "table.h"
#include <marlin/platform/text/code_page.h>

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

void AppendJson(const Section& section, const Record& record, JsonWriter& json) {
    json.BeginObject().Name("section").Text(PLATFORM::ToUtf8(*section.GetName()));
    json.Name("record").Text(record.Kind);
    json.Name("name").Text(PLATFORM::ToUtf8(record.Name));
    json.Name("fields").BeginArray();
    for (const ShownField& field : record.Fields) {
        json.BeginObject().Name("key").Text(PLATFORM::ToUtf8(field.Key));
        json.Name("value").Text(field.Color ? ColorText(*field.Color)
                                            : PLATFORM::ToUtf8(field.Value));
        json.Name("meaning").Text(field.Meaning).EndObject();
    }
    json.EndArray().EndObject();
}

}  // namespace

int ShowSettings(const std::string& path, Output& output) {
    SettingsSource source;
    if (const ErrorString error = source.OpenWithSections(path); !error.Empty()) {
        return Unusable(error);
    }
    JsonWriter json(output.Text);
    if (output.Json) {
        json.BeginArray();
    }
    for (const Section& section : source.File().Sections()) {
        for (const Record& record : RecordsOf(section)) {
            if (output.Json) {
                AppendJson(section, record, json);
            } else {
                AppendRecord(section, record, output);
            }
        }
    }
    if (output.Json) {
        json.EndArray();
    }
    return DONE;
}

}  // namespace HOST
