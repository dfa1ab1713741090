// SPDX-License-Identifier: MIT
#include <marlin/base/detail/item_text.h>
#include <marlin/base/format_string.h>

#include <algorithm>
#include <cassert>

FormatString::FormatString(const std::string& text, char separator) : m_Separator(separator) {
    MARLINSUITE::detail::SplitItems(text, separator, true, m_Items);
}

const std::string& FormatString::operator[](int index) const noexcept {
    assert(index >= 0 && index < Size());
    return m_Items[static_cast<std::size_t>(index)];
}

bool FormatString::HasSubString(const std::string& text) const noexcept {
    return std::ranges::find(m_Items, text) != m_Items.end();
}

std::string FormatString::String() const {
    return MARLINSUITE::detail::JoinItems(m_Items, m_Separator);
}

FormatString& FormatString::operator+=(const std::string& item) {
    m_Items.push_back(item);
    return *this;
}
