// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/owner_button.h>

#include <QFontInfo>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace PLATFORM::detail {

void OwnerButton::DrawAgain() {
    const QSize pixels = size() * devicePixelRatioF();
    CDC dc;
    CBitmap surface;
    if (!dc.CreateCompatibleDC(nullptr) ||
        !surface.CreateCompatibleBitmap(&dc, pixels.width(), pixels.height())) {
        return;
    }
    // The dialog's font, in pixels of the screen, of which a dense one has several for each pixel
    // of Qt.
    const QFontInfo shown(this->font());
    CFont font;
    font.CreateFontA(-qRound(shown.pixelSize() * devicePixelRatioF()), 0, 0, 0, shown.weight(), 0,
                     0, 0, ANSI_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY,
                     DEFAULT_PITCH, shown.family().toUtf8());
    CGdiObject* const surfaceBefore = dc.SelectObject(&surface);
    CGdiObject* const fontBefore = dc.SelectObject(&font);
    SendDraw(m_Handle, ODA_DRAWENTIRE, dc, {0, 0, pixels.width(), pixels.height()});
    // The pixels of a surface are in the order of the image's.
    m_Face = QImage(pixels, QImage::Format_RGB32);
    surface.GetBitmapBits(static_cast<unsigned long>(m_Face.sizeInBytes()), m_Face.bits());
    dc.SelectObject(fontBefore);
    dc.SelectObject(surfaceBefore);
    update();
}

void OwnerButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(rect(), m_Face);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

}  // namespace PLATFORM::detail
