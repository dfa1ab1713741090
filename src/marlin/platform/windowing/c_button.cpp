// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_button.h>

void CButton::DrawItem(DRAWITEMSTRUCT*) {}

bool CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
        return true;
    }
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}
