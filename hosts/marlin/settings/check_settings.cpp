// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/settings_source.h"
#include "output/json.h"
#include "output/table.h"

#include <algorithm>
#include <string_view>

namespace HOST {

namespace {

const char* SealOf(const Section& section) {
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
    void ReportRemarks() const;
};

Check::Check(const std::string& path) {
    const ErrorString error = Source.OpenWithSections(path);
    Failure = ReasonOf(error);
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

void Check::ReportRemarks() const {
    constexpr std::size_t most = 20;  // for a file of another kind has a fault on each line
    std::size_t numErrors = 0;
    std::size_t numWarnings = 0;
    for (const SettingsRemark& remark : Source.Scan().Remarks) {
        const bool isError = remark.Kind == SettingsRemark::ERROR;
        if (++(isError ? numErrors : numWarnings) <= most) {
            Report(AtLine(Source.Path(), remark.Line, isError ? "" : "warning: ") + remark.Cause);
        }
    }
    if (numErrors > most) {
        Report(Source.Path() + ": and " + CountText(numErrors - most, "more error"));
    }
    if (numWarnings > most) {
        Report(Source.Path() + ": and " + CountText(numWarnings - most, "more warning"));
    }
}

void Check::ReportAll() const {
    ReportRemarks();
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

void AppendTable(const SettingsSource& source, Output& output) {
    Table table{{"Section"}, {"Line", Table::RIGHT}, {"Keys", Table::RIGHT}, {"State"}};
    for (int i = 0; i < source.File().NumSections(); ++i) {
        const Section& section = source.File()[i];
        table << Shown(*section.GetName()) << source.Scan().HeaderLines[static_cast<std::size_t>(i)]
              << section.NumKeys() << SealOf(section);
    }
    output.Text += (output.Text.empty() ? "" : "\n") + Printable(AsUtf8(source.Path())) + "\n";
    table.AppendTo(output);
}

Json JsonOfRemarks(const SettingsScan& scan, bool areErrors) {
    Json remarks = Json::array();
    for (const SettingsRemark& remark : scan.Remarks) {
        if ((remark.Kind == SettingsRemark::ERROR) == areErrors) {
            remarks.push_back({{"line", remark.Line}, {"cause", remark.Cause}});
        }
    }
    return remarks;
}

Json JsonOfSections(const SettingsSource& source) {
    Json sections = Json::array();
    for (int i = 0; i < source.File().NumSections(); ++i) {
        const Section& section = source.File()[i];
        sections.push_back({{"name", AsUtf8(*section.GetName())},
                            {"line", source.Scan().HeaderLines[static_cast<std::size_t>(i)]},
                            {"keys", section.NumKeys()},
                            {"state", SealOf(section)}});
    }
    return sections;
}

Json JsonOf(const std::string& path, const Check& check) {
    return {{"file", AsUtf8(path)},
            {"code", check.Code},
            {"failure", AsUtf8(check.Failure)},
            {"errors", JsonOfRemarks(check.Source.Scan(), true)},
            {"warnings", JsonOfRemarks(check.Source.Scan(), false)},
            {"sections", JsonOfSections(check.Source)}};
}

struct CheckSettings {
    std::vector<std::string> Files;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Words("FILE", Files, "Settings files");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        Json json = Json::array();
        int code = DONE;
        for (const std::string& path : Files) {
            const Check check(path);
            check.ReportAll();
            code = std::max(code, check.Code);
            if (IsJson) {
                json.push_back(JsonOf(path, check));
            } else if (!check.Source.File().Empty()) {
                AppendTable(check.Source, output);
            }
        }
        if (IsJson) {
            AppendJson(json, output);
        }
        return code;
    }
};

}  // namespace

void AddCheckSettings(Family& settings) {
    settings.Add<CheckSettings>("check", "Look for faults, and whether sealed sections changed");
}

}  // namespace HOST
