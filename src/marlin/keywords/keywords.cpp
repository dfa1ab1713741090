// SPDX-License-Identifier: MIT
#include <marlin/base/marlin_string.h>
#include <marlin/keywords/keywords.h>
#include <marlin/keywords/predefined_keywords.h>
#include <marlin/settings/section.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace {

using Keywords = std::deque<CKeyword>;

// A count that wrapped could say that a keyword is not in use.
void AddCount(CKeyword& keyword, int count) noexcept {
    constexpr std::int64_t least = std::numeric_limits<int>::min();
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    const std::int64_t sum = std::int64_t{keyword.m_RefCount} + count;
    keyword.m_RefCount = static_cast<int>(std::clamp(sum, least, most));
}

// The first keyword of each name. Good until a keyword is renamed or removed.
template <class Table>
auto FirstByName(Table& keywords, std::size_t more = 0) {
    std::unordered_map<std::string_view, decltype(&keywords.front())> index;
    index.max_load_factor(0.25F);  // a look-up takes a third less time than at 1
    index.reserve(keywords.size() + more);
    for (auto& keyword : keywords) {
        index.try_emplace(keyword.m_Key, &keyword);
    }
    return index;
}

CKeyword UsedOnce(std::string_view name, std::string_view value) {
    return {1, 0, 0, std::string(value), std::string(name)};
}

bool EndsName(char c) noexcept {
    switch (c) {
        case '%':
        case '\n':
        case '\r':
        case '\0':
            return true;
        default:
            return false;
    }
}

}  // namespace

CKeywords::~CKeywords() = default;

void CKeywords::Swap(CKeywords& other) noexcept {
    m_Keywords.swap(other.m_Keywords);
    m_Index.swap(other.m_Index);
    std::swap(m_IsIndexed, other.m_IsIndexed);
    std::swap(m_IsLent, other.m_IsLent);
}

CKeyword* CKeywords::GetKeyword(const std::string& name) noexcept {
    CKeyword* const found = Find(name);
    m_IsLent = true;
    m_IsIndexed = false;
    return found;
}

const CKeyword* CKeywords::GetKeywordConst(const std::string& name) const noexcept {
    return Find(name);
}

CKeyword* CKeywords::GetKeyword(int i) noexcept {
    m_IsLent = true;
    m_IsIndexed = false;
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

CKeyword* CKeywords::Find(std::string_view name) const noexcept {
    if (m_IsIndexed) {
        const auto found = m_Index.find(name);
        return found == m_Index.end() ? nullptr : found->second;
    }
    const auto found = std::ranges::find(m_Keywords, name, &CKeyword::m_Key);
    return found == m_Keywords.end() ? nullptr : const_cast<CKeyword*>(&*found);
}

void CKeywords::Index(std::size_t more) {
    if (!m_IsIndexed) {
        m_Index = FirstByName(m_Keywords, more);
        m_IsIndexed = true;
    }
}

bool CKeywords::CountKnown(std::string_view name, int count) noexcept {
    CKeyword* const known = Find(name);
    if (known) {
        AddCount(*known, count);
    }
    return known;
}

void CKeywords::AddNew(const CKeyword& keyword, bool atFront) {
    CKeyword& added =
        atFront ? m_Keywords.emplace_front(keyword) : m_Keywords.emplace_back(keyword);
    if (m_IsIndexed) {
        m_Index.emplace(added.m_Key, &added);
    }
}

void CKeywords::Merge(const CKeyword& keyword, bool atFront) {
    if (!CountKnown(keyword.m_Key, keyword.m_RefCount)) {
        AddNew(keyword, atFront);
    }
}

void CKeywords::AddOne(const CKeyword* keyword, bool atFront) {
    if (keyword) {
        if (!m_IsLent) {
            Index();
        }
        Merge(*keyword, atFront);
    }
}

void CKeywords::AddKeyword(const CKeyword* keyword) {
    AddOne(keyword, false);
}

void CKeywords::AddKeywordToFront(const CKeyword* keyword) {
    AddOne(keyword, true);
}

void CKeywords::AddKeywords(const CKeywords& other) {
    Index(other.m_Keywords.size());
    for (const CKeyword& keyword : other.m_Keywords) {
        Merge(keyword);
    }
    m_IsIndexed = !m_IsLent;
}

void CKeywords::AddKeywordsInString(const std::string& text) {
    Index();
    std::string_view rest = text;
    for (std::size_t open = rest.find('%'); open != std::string_view::npos; open = rest.find('%')) {
        rest.remove_prefix(open + 1);
        const auto end = std::ranges::find_if(rest, EndsName);
        if (end == rest.end()) {
            break;
        }
        const std::string_view name(rest.begin(), end);
        if (*end == '%' && !name.empty() && !CountKnown(name, 1)) {
            AddNew(UsedOnce(name, name));
        }
        rest.remove_prefix(name.size() + 1);
    }
    m_IsIndexed = !m_IsLent;
}

void CKeywords::SetValues(const CKeywords& other) {
    const auto sources = FirstByName(other.m_Keywords);
    for (CKeyword& keyword : m_Keywords) {
        if (const auto source = sources.find(keyword.m_Key); source != sources.end()) {
            keyword.m_Value = source->second->m_Value;
        }
    }
}

void CKeywords::Clear() noexcept {
    m_Keywords.clear();
    m_IsIndexed = false;
    m_IsLent = false;
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
        m_IsIndexed = false;
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
    m_IsIndexed = false;
}

void CKeywords::AddRefcountRemove(CKeywords& other) {
    const auto known = FirstByName(m_Keywords);
    Keywords left;
    for (CKeyword& keyword : other.m_Keywords) {
        if (const auto same = known.find(keyword.m_Key); same != known.end()) {
            AddCount(*same->second, keyword.m_RefCount);
        } else {
            left.push_back(std::move(keyword));
        }
    }
    other.m_Keywords.swap(left);
    other.m_IsIndexed = false;
}

bool CKeywords::operator==(const CKeywords& other) const {
    if (GetSize() != other.GetSize()) {
        return false;
    }
    const auto others = FirstByName(other.m_Keywords);
    return std::ranges::all_of(m_Keywords, [&](const CKeyword& keyword) {
        const auto same = others.find(keyword.m_Key);
        return same != others.end() && same->second->m_Value == keyword.m_Value;
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
    static_cast<void>(Write(section));  // cannot fail
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
    Index();
    for (int item = 0; item < names.Size(); ++item) {
        const std::string_view name = names[item].View();
        if (!name.empty() && !CountKnown(name, 1)) {
            AddNew(UsedOnce(name, {}));
        }
    }
}
