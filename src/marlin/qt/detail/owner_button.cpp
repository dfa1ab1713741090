// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/surface_image.h>

#include <QFontInfo>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace PLATFORM::detail {

void OwnerButton::DrawAgain() {
    const QSize pixels = size() * devicePixelRatioF();
    // The dialog's font, in pixels of the screen, of which a dense one has several for each pixel
    // of Qt.
    const QFontInfo shown(this->font());
    CFont font;
    font.CreateFontA(-qRound(shown.pixelSize() * devicePixelRatioF()), 0, 0, 0, shown.weight(), 0,
                     0, 0, ANSI_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY,
                     DEFAULT_PITCH, shown.family().toUtf8());
    m_Face = DrawnImage(pixels, [&](CDC& dc) {
        CGdiObject* const fontBefore = dc.SelectObject(&font);
        SendDraw(m_Handle, ODA_DRAWENTIRE, dc, {0, 0, pixels.width(), pixels.height()});
        dc.SelectObject(fontBefore);
    });
    update();
}

void OwnerButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(rect(), m_Face);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

}  // namespace PLATFORM::detail
