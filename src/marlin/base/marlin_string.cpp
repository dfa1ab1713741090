// SPDX-License-Identifier: MIT
#include <marlin/base/detail/item_text.h>
#include <marlin/base/marlin_string.h>
#include <marlin/core/number_text.h>

#include <cassert>

CMarlinString::CMarlinString(const CString& text, char separator, bool keepEmpty)
    : m_Separator(separator) {
    MARLINSUITE::detail::SplitItems(text.View(), separator, keepEmpty, m_Items);
}

const CString& CMarlinString::operator[](int index) const noexcept {
    assert(index >= 0 && index < Size());
    return m_Items[static_cast<std::size_t>(index)];
}

CString CMarlinString::String() const {
    return CString(std::string_view(MARLINSUITE::detail::JoinItems(m_Items, m_Separator)));
}

const CString* CMarlinString::Find(int index) const noexcept {
    return index >= 0 && index < Size() ? &m_Items[static_cast<std::size_t>(index)] : nullptr;
}

template <class T>
bool CMarlinString::GetNumber(int index, T& value) const noexcept {
    const CString* const item = Find(index);
    return item && MARLINSUITE::ParseWhole(item->View(), value);
}

bool CMarlinString::GetItem(int index, CString& value) const {
    const CString* const item = Find(index);
    if (item) {
        value = *item;
    }
    return item != nullptr;
}

bool CMarlinString::GetItem(int index, int& value) const noexcept {
    return GetNumber(index, value);
}

bool CMarlinString::GetItem(int index, unsigned long& value) const noexcept {
    return GetNumber(index, value);
}

bool CMarlinString::GetItem(int index, float& value) const noexcept {
    return GetNumber(index, value);
}

bool CMarlinString::GetItem(int index, bool& value) const noexcept {
    return GetNumber(index, value);
}

void CMarlinString::Set(int index, const char* item) {
    SetItem(index, CString(item));
}

void CMarlinString::SetItem(int index, const CString& item) {
    assert(index >= 0);
    if (index < 0) {
        return;
    }
    if (index < Size()) {
        m_Items[static_cast<std::size_t>(index)] = item;
        return;
    }
    CString last = item;  // an item of this list moves when the list grows
    m_Items.resize(static_cast<std::size_t>(index));
    m_Items.push_back(std::move(last));
}
