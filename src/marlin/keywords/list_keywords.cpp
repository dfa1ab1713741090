// SPDX-License-Identifier: MIT
#include <marlin/base/data_search.h>
#include <marlin/core/detail/process_object.h>
#include <marlin/keywords/list_keywords.h>
#include <marlin/settings/ini_file.h>

#include <cstddef>

namespace {

constexpr unsigned int keywordFiles = 23;  // the kind of data file

CListKeyword ListOf(const Section& section) {
    CListKeyword keyword;
    keyword.SetName(section.GetName());
    for (const SectionKey& key : section.Keys()) {
        keyword.AddValue(key.GetName());
    }
    return keyword;
}

}  // namespace

CListKeywords::~CListKeywords() = default;

CListKeywords& CListKeywords::Get() {
    return MARLINSUITE::detail::ProcessObject<CListKeywords>();
}

CListKeyword* CListKeywords::GetListKeyword(const std::string& name) {
    CheckInit();
    for (CListKeyword& keyword : m_ListKeywords) {
        if (keyword.GetName() == name) {
            return &keyword;
        }
    }
    return nullptr;
}

CListKeyword* CListKeywords::GetListKeyword(int i) {
    CheckInit();
    const bool known = i >= 0 && static_cast<std::size_t>(i) < m_ListKeywords.size();
    return known ? &m_ListKeywords[static_cast<std::size_t>(i)] : nullptr;
}

void CListKeywords::CheckInit() {
    if (!m_ToLoad) {
        return;
    }
    CString path("Keywords");
    DataSearch::GetDataSearch().GetFullPath(keywordFiles, path);
    // A broken file counts up to its fault, so the result changes nothing.
    IniFile file;
    static_cast<void>(file.Open(path.GetString()));
    for (const Section& section : file.Sections()) {
        m_ListKeywords.push_back(ListOf(section));
    }
    m_ToLoad = false;
}
