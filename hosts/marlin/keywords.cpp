// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/files.h"
#include "input/settings_source.h"
#include "output/json.h"
#include "output/table.h"
#include <marlin/base/data_search.h>
#include <marlin/base/files/settings_grammar.h>
#include <marlin/keywords/keywords.h>
#include <marlin/keywords/list_keywords.h>

#include <filesystem>
#include <system_error>

namespace HOST {

namespace {

bool IsForPlots(const CKeyword& keyword) {
    return CKeywords::IsPredefinedPlotKeyword(keyword.m_Key);
}

bool IsPredefined(const CKeyword& keyword) {
    return CKeywords::IsPredefinedKeyword(keyword.m_Key) || IsForPlots(keyword);
}

// Takes an argument for a text when it holds a "%" and names no file.
std::string ReadTextOrFile(const std::string& argument) {
    std::error_code unknown;
    if (argument.find('%') != std::string::npos && !std::filesystem::exists(argument, unknown)) {
        return argument;
    }
    std::string text;
    Require(ReadText(argument, text));
    return text;
}

struct ScanKeywords {
    std::vector<std::string> Arguments;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Words("TEXT|FILE", Arguments, "Text with keywords, or a file");
        options.Json(IsJson);
    }

    int Run(Output& output) const;
};

int ScanKeywords::Run(Output& output) const {
    CKeywords keywords;
    for (const std::string& argument : Arguments) {
        keywords.AddKeywordsInString(ReadTextOrFile(argument));
    }
    Json json = Json::array();
    Table table{{"Keyword"}, {"Count", Table::RIGHT}, {"Predefined"}};
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        table << Shown(keyword.m_Key) << keyword.m_RefCount
              << (IsForPlots(keyword)     ? "in plots"
                  : IsPredefined(keyword) ? "yes"
                                          : "no");
        json.push_back({{"name", AsUtf8(keyword.m_Key)},
                        {"count", keyword.m_RefCount},
                        {"predefined", IsPredefined(keyword)},
                        {"plotsOnly", IsForPlots(keyword)}});
    }
    if (IsJson) {
        AppendJson(json, output);
    } else {
        table.AppendTo(output);
    }
    return DONE;
}

Json JsonOfList() {
    Json list = Json::array();
    CListKeywords& keywords = CListKeywords::Get();
    for (int i = 0; const CListKeyword* const keyword = keywords.GetListKeyword(i); ++i) {
        Json choices = Json::array();
        for (int choice = 0; choice < keyword->GetSize(); ++choice) {
            choices.push_back(AsUtf8(keyword->GetValue(choice)));
        }
        list.push_back({{"name", AsUtf8(keyword->GetName())}, {"choices", std::move(choices)}});
    }
    return list;
}

void AppendList(Output& output) {
    Table table{{"Keyword"}, {"Choice"}};
    CListKeywords& keywords = CListKeywords::Get();
    for (int i = 0; const CListKeyword* const keyword = keywords.GetListKeyword(i); ++i) {
        table << Shown(keyword->GetName()) << Shown(keyword->GetValue(0));
        for (int choice = 1; choice < keyword->GetSize(); ++choice) {
            table.Skip(1) << Shown(keyword->GetValue(choice));
        }
    }
    table.AppendTo(output);
}

// What is wrong with a line of choices, or an empty text: a choice of which a part is not read, or
// which begins a section.
std::string CutOf(const MARLINSUITE::SettingsLine& line) {
    using MARLINSUITE::SettingsLine;
    const std::string text = Shown(MARLINSUITE::TrimmedSettingsText(line.Bytes));
    if (line.Kind == SettingsLine::HEADER && !line.Ignored.empty()) {
        return "\"" + text + "\" is taken for the section \"" + Shown(line.Name) + "\"";
    }
    if (line.Kind == SettingsLine::KEY && (!line.Value.empty() || !line.Comments.empty())) {
        return "the choice \"" + text + "\" is cut to \"" + Shown(line.Name) + "\"";
    }
    return {};
}

// True when there was one.
bool ReportCuts(SettingsSource& source) {
    bool found = false;
    const std::string bytes = source.Text().Bytes();
    MARLINSUITE::ForEachSettingsLine(bytes, [&](const MARLINSUITE::SettingsLine& line) {
        const std::string cut = CutOf(line);
        if (!cut.empty()) {
            Report(AtLine(source.Path(), line.Number, cut));
        }
        found = found || !cut.empty();
        return line.Number != source.Scan().FaultLine;
    });
    return found;
}

struct ListKeywords {
    bool IsJson = false;

    void Declare(Options& options) { options.Json(IsJson); }

    int Run(Output& output) const;
};

int ListKeywords::Run(Output& output) const {
    constexpr unsigned int keywordFiles = 23;
    CString found("Keywords");
    DataSearch::GetDataSearch().GetFullPath(keywordFiles, found);
    const std::string path = found.GetString();
    // The library reads the list by itself and in silence; this reading finds the faults.
    SettingsSource source;
    const ErrorString error = source.Open(path);
    if (!error.Empty() && source.Path().empty()) {
        Require(error);
    }
    if (IsJson) {
        AppendJson({{"file", AsUtf8(path)}, {"keywords", JsonOfList()}}, output);
    } else {
        output.Text += Printable(AsUtf8(path)) + "\n";
        AppendList(output);
    }
    const bool isCut = ReportCuts(source);
    if (!error.Empty()) {  // the keywords before a fault of syntax count
        Report(ReasonOf(error));
    }
    return isCut || !error.Empty() ? FOUND : DONE;
}

}  // namespace

void AddKeywords(Family& program) {
    Family keywords = program.AddFamily("keywords", "Keywords of plot texts");
    keywords.Add<ScanKeywords>("scan", "Count the keywords of texts and files");
    keywords.Add<ListKeywords>("list", "Show the list keywords and their choices");
}

}  // namespace HOST
