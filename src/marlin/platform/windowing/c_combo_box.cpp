// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_combo_box.h>
#include <marlin/platform/windowing/window_system.h>

using PLATFORM::DropDownList;
using PLATFORM::WindowSystem;

int CComboBox::GetCount() const {
    const DropDownList* const items = WindowSystem::Current().FindDropDown(m_hWnd);
    return items ? items->ItemCount() : 0;
}

void CComboBox::GetLBText(int item, CString& text) const {
    const DropDownList* const items = WindowSystem::Current().FindDropDown(m_hWnd);
    text = items ? items->ItemText(item) : CString();
}

int CComboBox::AddString(const char* text) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}
