// SPDX-License-Identifier: MIT
#include "commands.h"
#include "input.h"
#include "json.h"
#include "settings_source.h"
#include "table.h"
#include <marlin/base/data_search.h>
#include <marlin/keywords/keywords.h>
#include <marlin/keywords/list_keywords.h>
#include <marlin/platform/text/code_page.h>

#include <filesystem>
#include <system_error>

namespace HOST {

namespace {

bool IsPredefined(const CKeyword& keyword) {
    return CKeywords::IsPredefinedKeyword(keyword.m_Key) ||
           CKeywords::IsPredefinedPlotKeyword(keyword.m_Key);
}

// What exists is a file; a text is what holds a "%".
ErrorString ReadTextOrFile(const std::string& argument, std::string& text) {
    std::error_code unknown;
    if (argument.find('%') == std::string::npos || std::filesystem::exists(argument, unknown)) {
        return ReadInput(argument, LargestTextFile, text);
    }
    return TextOfArgument(argument, text);
}

void AppendJson(const CKeywords& keywords, std::string& text) {
    JsonWriter json(text);
    json.BeginArray();
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        json.BeginObject().Name("name").Text(PLATFORM::ToUtf8(keyword.m_Key));
        json.Name("count").Number(keyword.m_RefCount);
        json.Name("predefined").Bool(IsPredefined(keyword));
        json.Name("plotsOnly").Bool(CKeywords::IsPredefinedPlotKeyword(keyword.m_Key));
        json.EndObject();
    }
    json.EndArray();
}

void AppendTable(const CKeywords& keywords, Output& output) {
    Table table{{"Keyword"}, {"Count", Table::RIGHT}, {"Predefined"}};
    for (int i = 0; i < keywords.GetSize(); ++i) {
        const CKeyword& keyword = *keywords.GetKeywordConst(i);
        const bool isPlots = CKeywords::IsPredefinedPlotKeyword(keyword.m_Key);
        table << Shown(keyword.m_Key) << keyword.m_RefCount
              << std::string(isPlots                 ? "in plots"
                             : IsPredefined(keyword) ? "yes"
                                                     : "no");
    }
    table.AppendTo(output);
}

void AppendListJson(const std::string& path, std::string& text) {
    JsonWriter json(text);
    json.BeginObject().Name("file").Text(path);
    json.Name("keywords").BeginArray();
    CListKeywords& keywords = CListKeywords::Get();
    for (int i = 0; const CListKeyword* const keyword = keywords.GetListKeyword(i); ++i) {
        json.BeginObject().Name("name").Text(PLATFORM::ToUtf8(keyword->GetName()));
        json.Name("choices").BeginArray();
        for (int choice = 0; choice < keyword->GetSize(); ++choice) {
            json.Text(PLATFORM::ToUtf8(keyword->GetValue(choice)));
        }
        json.EndArray().EndObject();
    }
    json.EndArray().EndObject();
}

void AppendList(const std::string& path, Output& output) {
    output.Text += Printable(AsUtf8(path)) + "\n";
    Table table{{"Keyword"}, {"Choice"}};
    CListKeywords& keywords = CListKeywords::Get();
    for (int i = 0; const CListKeyword* const keyword = keywords.GetListKeyword(i); ++i) {
        table << Shown(keyword->GetName()) << Shown(keyword->GetValue(0));
        for (int choice = 1; choice < keyword->GetSize(); ++choice) {
            table << std::string() << Shown(keyword->GetValue(choice));
        }
    }
    table.AppendTo(output);
}

}  // namespace

int ScanKeywords(const std::vector<std::string>& arguments, Output& output) {
    CKeywords keywords;
    for (const std::string& argument : arguments) {
        std::string text;
        if (const ErrorString error = ReadTextOrFile(argument, text); !error.Empty()) {
            return Unusable(error);
        }
        keywords.AddKeywordsInString(text);
    }
    if (output.Json) {
        AppendJson(keywords, output.Text);
    } else {
        AppendTable(keywords, output);
    }
    return DONE;
}

int ListKeywords(Output& output) {
    constexpr unsigned int keywordFiles = 23;
    CString found("Keywords");
    DataSearch::GetDataSearch().GetFullPath(keywordFiles, found);
    const std::string path = found.GetString();
    SettingsSource source;
    const ErrorString error = source.Open(path);
    if (!error.Empty() && source.Path().empty()) {
        return Unusable(error);
    }
    if (output.Json) {
        AppendListJson(path, output.Text);
    } else {
        AppendList(path, output);
    }
    if (!error.Empty()) {  // what stands before a fault of syntax counts
        Report(error);
        return FOUND;
    }
    return DONE;
}

}  // namespace HOST
