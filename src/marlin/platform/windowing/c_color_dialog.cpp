// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_color_dialog.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/window_system.h>

int CColorDialog::DoModal() {
    const PLATFORM::ColorRequest request = {m_cc.rgbResult, static_cast<UINT>(m_cc.Flags)};
    const HWND parent = m_Parent ? m_Parent->GetSafeHwnd() : nullptr;
    const bool chosen =
        PLATFORM::WindowSystem::Current().ChooseColor(parent, request, m_cc.rgbResult);
    return chosen ? IDOK : IDCANCEL;
}
