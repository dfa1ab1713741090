// SPDX-License-Identifier: MIT
#include <marlin/gdi/font_combo.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/fonts/fonts.h>

// The framework's callback takes a long, which has to hold the address of the control.
static_assert(sizeof(long) == sizeof(void*));

BEGIN_MESSAGE_MAP(FontCombo, CComboBox)
END_MESSAGE_MAP()

FontCombo::~FontCombo() = default;

void FontCombo::FillCombo() {
    if (!IsWindow(m_hWnd)) {
        return;
    }
    CClientDC dc(this);
    LOGFONTA wanted;
    EnumFontFamiliesExA(dc, &wanted, HandleFonts, reinterpret_cast<long>(this), 0);
}

int FontCombo::HandleFonts(const LOGFONTA* font, const TEXTMETRICA*, unsigned long type,
                           long combo) {
    if (type == TRUETYPE_FONTTYPE) {
        reinterpret_cast<FontCombo*>(combo)->SendMessage(
            CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(font->lfFaceName));
    }
    return 1;
}
