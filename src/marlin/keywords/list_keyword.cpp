// SPDX-License-Identifier: MIT
#include <marlin/keywords/list_keyword.h>

#include <algorithm>
#include <cstddef>
#include <functional>

CListKeyword::~CListKeyword() = default;

std::string CListKeyword::GetValue(int i) const {
    return i >= 0 && i < GetSize() ? m_Values[static_cast<std::size_t>(i)] : std::string();
}

void CListKeyword::AddValue(const std::string& value) {
    const std::size_t hash = std::hash<std::string>()(value);
    const auto [first, last] = m_Positions.equal_range(hash);
    const auto isValue = [&](const auto& known) { return m_Values[known.second] == value; };
    if (std::none_of(first, last, isValue)) {
        m_Positions.emplace(hash, m_Values.size());
        m_Values.push_back(value);
    }
}

void CListKeyword::Clear() noexcept {
    m_Values.clear();
    m_Positions.clear();
}
