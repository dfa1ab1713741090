// SPDX-License-Identifier: MIT
#include "commands.h"
#include "input.h"
#include "json.h"
#include "settings_source.h"
#include "table.h"
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <string_view>

namespace HOST {

namespace {

std::string_view SealOf(const Section& section) {
    if (!section.HasKey(*Section::m_ChecksumName)) {
        return "not sealed";
    }
    return section.IsModified() ? "changed since sealed" : "sealed, unchanged";
}

bool IsChanged(const Section& section) {
    return section.HasKey(*Section::m_ChecksumName) && section.IsModified();
}

// One file looked at.
struct Check {
    SettingsSource Source;
    std::string Failure;  // what ended the reading
    int Code = DONE;

    explicit Check(const std::string& path);
    void ReportAll() const;
};

Check::Check(const std::string& path) {
    const ErrorString error = Source.OpenWithSections(path);
    Failure = error.Cause().empty() ? error.Text() : error.Cause();
    const auto isError = [](const SettingsRemark& remark) {
        return remark.Kind == SettingsRemark::ERROR;
    };
    if (!error.Empty() && (Source.Path().empty() || !Source.Scan().Fault.empty())) {
        Code = UNUSABLE;
    } else if (!error.Empty() || std::ranges::any_of(Source.Scan().Remarks, isError) ||
               std::ranges::any_of(Source.File().Sections(), IsChanged)) {
        Code = FOUND;
    }
}

void Check::ReportAll() const {
    for (const SettingsRemark& remark : Source.Scan().Remarks) {
        const bool isError = remark.Kind == SettingsRemark::ERROR;
        Report(AtLine(Source.Path(), remark.Line, isError ? "" : "warning: ") + remark.Cause);
    }
    if (!Failure.empty()) {
        Report(Failure);
    }
    for (const Section& section : Source.File().Sections()) {
        if (IsChanged(section)) {
            Report(Source.Path() + ": section \"" + Shown(*section.GetName()) +
                   "\" changed since it was sealed");
        }
    }
}

void AppendTable(const Check& check, Output& output) {
    Table table{{"Section"}, {"Line", Table::RIGHT}, {"Keys", Table::RIGHT}, {"State"}};
    const SettingsSource& source = check.Source;
    for (int i = 0; i < source.File().NumSections(); ++i) {
        const Section& section = source.File()[i];
        table << Shown(*section.GetName()) << source.Scan().HeaderLines[static_cast<std::size_t>(i)]
              << section.NumKeys() << std::string(SealOf(section));
    }
    table.AppendTo(output);
}

void AppendRemarks(JsonWriter& json, const SettingsScan& scan, std::string_view name,
                   bool areErrors) {
    json.Name(name).BeginArray();
    for (const SettingsRemark& remark : scan.Remarks) {
        if ((remark.Kind == SettingsRemark::ERROR) == areErrors) {
            json.BeginObject().Name("line").Number(remark.Line);
            json.Name("cause").Text(remark.Cause).EndObject();
        }
    }
    json.EndArray();
}

void AppendJson(JsonWriter& json, const std::string& path, const Check& check) {
    json.BeginObject().Name("file").Text(path);
    json.Name("code").Number(check.Code);
    json.Name("failure").Text(check.Failure);
    AppendRemarks(json, check.Source.Scan(), "errors", true);
    AppendRemarks(json, check.Source.Scan(), "warnings", false);
    json.Name("sections").BeginArray();
    for (int i = 0; i < check.Source.File().NumSections(); ++i) {
        const Section& section = check.Source.File()[i];
        json.BeginObject().Name("name").Text(PLATFORM::ToUtf8(*section.GetName()));
        json.Name("line").Number(check.Source.Scan().HeaderLines[static_cast<std::size_t>(i)]);
        json.Name("keys").Number(section.NumKeys());
        json.Name("state").Text(SealOf(section)).EndObject();
    }
    json.EndArray().EndObject();
}

}  // namespace

int CheckSettings(const std::vector<std::string>& paths, Output& output) {
    JsonWriter json(output.Text);
    if (output.Json) {
        json.BeginArray();
    }
    int code = DONE;
    for (const std::string& path : paths) {
        const Check check(path);
        check.ReportAll();
        code = std::max(code, check.Code);
        if (output.Json) {
            AppendJson(json, path, check);
        } else if (!check.Source.File().Empty()) {
            output.Text += (output.Text.empty() ? "" : "\n") + Printable(AsUtf8(path)) + "\n";
            AppendTable(check, output);
        }
    }
    if (output.Json) {
        json.EndArray();
    }
    return code;
}

}  // namespace HOST
