// SPDX-License-Identifier: MIT
#include <marlin/keywords/list_keyword.h>

#include <cstddef>

CListKeyword::~CListKeyword() = default;

std::string CListKeyword::GetValue(int i) const {
    return i >= 0 && i < GetSize() ? m_Values[static_cast<std::size_t>(i)] : std::string();
}

void CListKeyword::AddValue(const std::string& value) {
    if (m_Known.insert(value).second) {
        m_Values.push_back(value);
    }
}

void CListKeyword::Clear() noexcept {
    m_Values.clear();
    m_Known.clear();
}
