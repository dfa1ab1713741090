// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/keywords/detail/keyword_index.h>
#include <marlin/keywords/detail/keyword_scanner.h>
#include <marlin/keywords/keywords.h>
#include <marlin/keywords/predefined_keywords.h>
#include <marlin/settings/section.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

using MARLINSUITE::KeywordIndex;
using MARLINSUITE::ScannedName;
using Keywords = std::deque<CKeyword>;

// A count that wrapped could say that a keyword is not in use.
void AddCount(CKeyword& keyword, int count) noexcept {
    constexpr std::int64_t least = std::numeric_limits<int>::min();
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    const std::int64_t sum = std::int64_t{keyword.m_RefCount} + count;
    keyword.m_RefCount = static_cast<int>(std::clamp(sum, least, most));
}

const CKeyword* Find(const Keywords& keywords, std::string_view name) noexcept {
    const auto found = std::ranges::find(keywords, name, &CKeyword::m_Key);
    return found == keywords.end() ? nullptr : &*found;
}

CKeyword* Find(Keywords& keywords, std::string_view name) noexcept {
    return const_cast<CKeyword*>(Find(std::as_const(keywords), name));
}

ScannedName Hashed(std::string_view name) noexcept {
    return {name, MARLINSUITE::HashOfWords(name)};
}

// The keyword is one of the table over which the index was made.
CKeyword* Find(KeywordIndex& index, const ScannedName& name) {
    return const_cast<CKeyword*>(index.Find(name));
}

CKeyword UsedOnce(std::string_view name, std::string_view value) {
    return {1, 0, 0, std::string(value), std::string(name)};
}

}  // namespace

CKeywords::~CKeywords() = default;

CKeyword* CKeywords::GetKeyword(const std::string& name) noexcept {
    return Find(m_Keywords, name);
}

const CKeyword* CKeywords::GetKeywordConst(const std::string& name) const noexcept {
    return Find(m_Keywords, name);
}

CKeyword* CKeywords::GetKeyword(int i) noexcept {
    return const_cast<CKeyword*>(GetKeywordConst(i));
}

const CKeyword* CKeywords::GetKeywordConst(int i) const noexcept {
    return i >= 0 && i < GetSize() ? &m_Keywords[static_cast<std::size_t>(i)] : nullptr;
}

bool CKeywords::IsPredefinedKeyword(const std::string& name) noexcept {
    return std::ranges::find(PredefinedKeywordKeys, name) != std::end(PredefinedKeywordKeys);
}

bool CKeywords::IsPredefinedPlotKeyword(const std::string& name) noexcept {
    return name == PredefinedPlotKeywordKeys[0];
}

void CKeywords::AddKeyword(const CKeyword* keyword) {
    if (!keyword) {
        return;
    }
    if (CKeyword* const known = GetKeyword(keyword->m_Key)) {
        AddCount(*known, keyword->m_RefCount);
    } else {
        m_Keywords.push_back(*keyword);
    }
}

void CKeywords::AddKeywordToFront(const CKeyword* keyword) {
    if (!keyword) {
        return;
    }
    if (CKeyword* const known = GetKeyword(keyword->m_Key)) {
        AddCount(*known, keyword->m_RefCount);
    } else {
        m_Keywords.push_front(*keyword);
    }
}

void CKeywords::AddKeywords(const CKeywords& other) {
    KeywordIndex index(m_Keywords);
    for (const CKeyword& keyword : other.m_Keywords) {
        const ScannedName name = Hashed(keyword.m_Key);
        if (CKeyword* const known = Find(index, name)) {
            AddCount(*known, keyword.m_RefCount);
        } else {
            m_Keywords.push_back(keyword);
            index.AddLast(name);
        }
    }
}

void CKeywords::AddKeywordsInString(const std::string& text) {
    KeywordIndex index(m_Keywords);
    MARLINSUITE::KeywordScanner scanner(text);
    for (ScannedName name = scanner.Next(); !name.Text.empty(); name = scanner.Next()) {
        if (CKeyword* const known = Find(index, name)) {
            AddCount(*known, 1);
        } else {
            m_Keywords.push_back(UsedOnce(name.Text, name.Text));
            index.AddLast(name);
        }
    }
}

void CKeywords::SetValues(const CKeywords& other) {
    KeywordIndex index(other.m_Keywords);
    for (CKeyword& keyword : m_Keywords) {
        if (const CKeyword* const source = index.Find(Hashed(keyword.m_Key))) {
            keyword.m_Value = source->m_Value;
        }
    }
}

void CKeywords::ClearRefCount() noexcept {
    for (CKeyword& keyword : m_Keywords) {
        keyword.m_RefCount = 0;
    }
}

void CKeywords::RemoveKeyword(const std::string& name, bool evenInUse) {
    const auto found = std::ranges::find(m_Keywords, name, &CKeyword::m_Key);
    if (found != m_Keywords.end() && (evenInUse || found->m_RefCount == 0)) {
        m_Keywords.erase(found);
    }
}

void CKeywords::ExcludeKeywords(const CKeywords& other) {
    std::unordered_map<std::string, int> excluded;  // names of its own: other may be this table
    for (const CKeyword& keyword : other.m_Keywords) {
        ++excluded[keyword.m_Key];
    }
    std::erase_if(m_Keywords, [&](const CKeyword& keyword) {
        const auto found = excluded.find(keyword.m_Key);
        return found != excluded.end() && found->second-- > 0;
    });
}

void CKeywords::AddRefcountRemove(CKeywords& other) {
    KeywordIndex index(m_Keywords);
    Keywords left;
    for (CKeyword& keyword : other.m_Keywords) {
        if (CKeyword* const known = Find(index, Hashed(keyword.m_Key))) {
            AddCount(*known, keyword.m_RefCount);
        } else {
            left.push_back(std::move(keyword));
        }
    }
    other.m_Keywords.swap(left);
}

bool CKeywords::operator==(const CKeywords& other) const {
    KeywordIndex index(other.m_Keywords);
    return GetSize() == other.GetSize() &&
           std::ranges::all_of(m_Keywords, [&](const CKeyword& keyword) {
               const CKeyword* const same = index.Find(Hashed(keyword.m_Key));
               return same && same->m_Value == keyword.m_Value;
           });
}

ErrorString CKeywords::Read(const Section& section) {
    Clear();
    for (const SectionKey& key : section.Keys()) {
        m_Keywords.push_back({0, 0, 0, key.GetValue(), *key.GetName()});
    }
    return ErrorString(true);
}

ErrorString CKeywords::Write(Section& section) const {
    section.Clear();
    for (const CKeyword& keyword : m_Keywords) {
        section.AddKey(SectionKey(keyword.m_Key, keyword.m_Value));
    }
    return ErrorString(true);
}

unsigned int CKeywords::GetChecksum() const {
    Section section("$KEYWORDS$");
    Write(section);
    return section.ComputeChecksum();
}

std::string CKeywords::ToString() const {
    CMarlinString names(',');
    names.SetSeparator('%');
    int item = 0;
    for (const CKeyword& keyword : m_Keywords) {
        names.SetItem(item++, CString(std::string_view(keyword.m_Key)));
    }
    return std::string(names.String().View());
}

void CKeywords::FromString(const std::string& text) {
    const CMarlinString names(CString(std::string_view(text)), '%', true);
    Clear();
    KeywordIndex index(m_Keywords);
    for (int item = 0; item < names.Size(); ++item) {
        const ScannedName name = Hashed(names[item].View());
        if (name.Text.empty()) {
            continue;
        }
        if (CKeyword* const known = Find(index, name)) {
            AddCount(*known, 1);
        } else {
            m_Keywords.push_back(UsedOnce(name.Text, {}));
            index.AddLast(name);
        }
    }
}
