// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/headless_drop_down.h>

#include <algorithm>

namespace PLATFORM::detail {

HeadlessDropDown::HeadlessDropDown(const ControlTemplate& form) : m_IsSorted(form.Sorted) {
    for (const std::string_view item : form.Items) {
        m_Items.emplace_back(item);
    }
}

CString HeadlessDropDown::ItemText(int item) const {
    return HasItem(item) ? m_Items[static_cast<std::size_t>(item)] : CString();
}

int HeadlessDropDown::AddItem(const CString& text) {
    const auto comesLater = [&text](const CString& item) { return text.CompareNoCase(item) < 0; };
    const auto place = m_IsSorted ? std::ranges::find_if(m_Items, comesLater) : m_Items.end();
    const int index = static_cast<int>(place - m_Items.begin());
    m_Items.insert(place, text);
    // An item inserted before the chosen one moves it.
    m_Current += index <= m_Current ? 1 : 0;
    return index;
}

}  // namespace PLATFORM::detail
