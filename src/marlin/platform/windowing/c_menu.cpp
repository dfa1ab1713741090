// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_menu.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/window_system.h>

void CMenu::AppendMenu(UINT flags, UINT id, const char* text) {
    const bool isLine = (flags & MF_SEPARATOR) != 0;
    m_Request.Items.push_back(
        {isLine ? 0 : static_cast<int>(id), CString(text), (flags & MF_GRAYED) == 0});
}

int CMenu::TrackPopupMenu(UINT, int x, int y, CWnd* owner) const {
    PLATFORM::MenuRequest request = m_Request;
    request.Place = {x, y};
    return PLATFORM::WindowSystem::Current().ShowMenu(owner->GetSafeHwnd(), request);
}
