// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_spin_button_ctrl.h>
#include <marlin/platform/windowing/window_system.h>

void CSpinButtonCtrl::SetRange(int lower, int upper) {
    PLATFORM::WindowSystem::Current().SetRange(m_hWnd, {lower, upper});
}
