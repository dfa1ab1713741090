// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/detail/headless_control.h>
#include <marlin/platform/windowing/user_events.h>

namespace PLATFORM::detail {

HeadlessControl::HeadlessControl(HWND window, HWND dialog, const ControlTemplate& form, HWND before)
    : Window(window), Dialog(dialog), Form(form), Before(before) {
    const SIZE size = FaceSize();
    if (Is(CONTROL::OWNER_BUTTON) && Face.CreateCompatibleDC(nullptr) &&
        Surface.CreateCompatibleBitmap(&Face, size.cx, size.cy)) {
        Face.SelectObject(&Surface);
        Face.SelectStockObject(DEFAULT_GUI_FONT);
    }
}

SIZE HeadlessControl::FaceSize() const noexcept {
    // The dialog font's average character is 6 by 13 pixels, which are 4 by 8 dialog units.
    return Is(CONTROL::OWNER_BUTTON) ? SIZE{Form.Width * 6 / 4, Form.Height * 13 / 8} : SIZE();
}

void HeadlessControl::Draw(UINT action) const {
    const SIZE size = FaceSize();
    if (Face.m_hDC) {
        SendDraw(Window, action, Face, {0, 0, size.cx, size.cy});
    }
}

}  // namespace PLATFORM::detail
