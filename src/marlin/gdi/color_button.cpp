// SPDX-License-Identifier: MIT
#include <marlin/color/color_text.h>
#include <marlin/gdi/color_button.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/fonts/fonts.h>
#include <marlin/platform/windowing/c_color_dialog.h>
#include <marlin/platform/windowing/window_system.h>

BEGIN_MESSAGE_MAP(ColorButton, CButton)
ON_CONTROL_REFLECT(BN_CLICKED, OnClicked)
END_MESSAGE_MAP()

namespace {

constexpr unsigned long everyColorBit = 0xFFFFFF;

void DrawCaption(CDC& dc, const RECT& face, const CString& caption) {
    SIZE extent;
    GetTextExtentPoint32A(dc.m_hAttribDC, caption, caption.GetLength(), &extent);
    const int x = face.left + (face.right - face.left) / 2 - extent.cx / 2;
    const int y = face.top + (face.bottom - face.top) / 2 - extent.cy / 2;
    dc.TextOut(x, y, caption);
}

}  // namespace

ColorButton::~ColorButton() = default;

void ColorButton::DrawItem(DRAWITEMSTRUCT* draw) {
    CDC* const dc = CDC::FromHandle(draw->hDC);
    if (!dc || (draw->itemAction & ODA_DRAWENTIRE) == 0) {
        return;
    }
    // 255 less each component.
    const unsigned long inverse = ~m_Color & everyColorBit;
    CBrush face(m_Color);
    CBrush frame(inverse);
    dc->FillRect(&draw->rcItem, &face);
    dc->FrameRect(&draw->rcItem, &frame);
    dc->SetTextColor(inverse);
    dc->SetBkColor(m_Color);
    CString caption;
    GetWindowText(caption);
    DrawCaption(*dc, draw->rcItem, caption);
    // Who cannot see the face hears it.
    PLATFORM::WindowSystem::Current().Describe(
        m_hWnd, CString("Color " + MARLINSUITE::ColorText(RGBColor(m_Color))));
}

BOOL ColorButton::PreTranslateMessage(const MSG* message) {
    PLATFORM::WindowSystem& system = PLATFORM::WindowSystem::Current();
    const bool isHeld =
        message->message == WM_KEYDOWN && GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_SHIFT) >= 0;
    if (!isHeld || (message->wParam != 'C' && message->wParam != 'V')) {
        return CButton::PreTranslateMessage(message);
    }
    if (message->wParam == 'C') {
        system.SetClipboardText(CString(MARLINSUITE::ColorText(RGBColor(m_Color))));
    } else if (const auto color = MARLINSUITE::ParseColor(system.ClipboardText().Trim().View())) {
        m_Color = *color;
        InvalidateRect(nullptr, true);
    }
    return 1;
}

void ColorButton::OnClicked() {
    CColorDialog dialog(m_Color, CC_FULLOPEN, this);
    if (dialog.DoModal() == IDOK) {
        m_Color = dialog.m_cc.rgbResult;
        InvalidateRect(nullptr, true);
    }
}
